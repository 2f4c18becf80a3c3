#include "sample_package.h"

#include <array>

namespace SamplePackage {
namespace {

// The texts of a behavior in one language; "#" is replaced by its number.
struct Texts {
    const char *name;
    const char *description;
    std::array<const char *, 2> tags;
    std::array<const char *, 3> triggerSentences;
    std::array<const char *, 2> loadingResponses;
};

const std::array texts{
    Texts{"Visit to workshop #",
          "Leads a visitor to workshop #, tells what is made there & waits at the door.",
          {"workshop #", "visitors"},
          {"Where is workshop # and how do I get there?", "Take me to number #, please.",
           "Let us go and see what they make in number #."},
          {"Workshop # it is. Follow me!", "One moment, I am looking up the way to number #."}},
    Texts{"Visite de l'atelier #",
          "Conduit le visiteur à l'atelier #, raconte ce qu'on y fabrique et attend à la porte.",
          {"atelier #", "visiteurs"},
          {"Où se trouve l'atelier # et comment y aller ?",
           "Emmène-moi au numéro #, s'il te plaît.", "Allons voir ce qu'on fait au numéro #."},
          {"Va pour l'atelier #. Suivez-moi !", "Un instant, je cherche le chemin du numéro #."}},
    Texts{"第#工房の見学",
          "来館者を第#工房へ案内し、そこで作られているものを説明して、入口で待ちます。",
          {"第#工房", "来館者"},
          {"第#工房はどこですか。", "#番の工房まで連れて行ってください。",
           "#番で何を作っているのか見に行きましょう。"},
          {"第#工房ですね。こちらへどうぞ。", "少々お待ちください。道を調べています。"}},
};

// Those after the third repeat the texts of the first three.
constexpr std::array codes{"en_US", "fr_FR", "ja_JP", "de_DE", "es_ES",
                           "it_IT", "ko_KR", "nl_NL", "pt_BR", "zh_CN"};

template<typename Visit>
void forEachLanguage(int count, Visit visit) {
    for (std::size_t i = 0; i < std::size_t(count); ++i)
        visit(codes.at(i), texts[i % texts.size()]);
}

std::string numbered(const char *pattern, const std::string &number) {
    std::string text = pattern;
    for (auto at = text.find('#'); at != std::string::npos; at = text.find('#', at))
        text.replace(at, 1, number);
    return text;
}

} // namespace

std::string path(int index) {
    return "workshops/" + std::to_string(index);
}

Tano::BehaviorInfo behavior(int index, int languageCount) {
    const std::string number = std::to_string(index + 1);
    Tano::BehaviorInfo behavior;
    behavior.setPath(path(index));
    behavior.setNature(Tano::BehaviorInfo::natureInteractive());
    behavior.setUserRequestable(true);
    behavior.addPermission("walk");
    behavior.addCondition("door " + number + " is open", "launch");
    forEachLanguage(languageCount, [&](const char *code, const Texts &in) {
        behavior.setName(numbered(in.name, number), code);
        behavior.setDescription(numbered(in.description, number), code);
        for (const char *tag : in.tags)
            behavior.addTag(numbered(tag, number), code);
        for (const char *sentence : in.triggerSentences)
            behavior.addTriggerSentence(numbered(sentence, number), code);
        for (const char *response : in.loadingResponses)
            behavior.addLoadingResponse(numbered(response, number), code);
    });
    return behavior;
}

Tano::PackageInfo package(int behaviorCount, int languageCount) {
    Tano::PackageInfo package;
    package.setUuid("workshop-guide");
    package.setVersion("1.4.0");
    package.setAuthor("Ines Moreau");
    forEachLanguage(languageCount, [&](const char *code, const Texts &in) {
        package.addSupportedLanguage(code);
        package.addDescriptionLanguage(code);
        package.setName(numbered(in.name, "0"), code);
        package.setDescription(numbered(in.description, "0"), code);
    });
    package.addRobotRequirement({"", "", "", "1.0", "2.5"});
    package.addBrioRequirement({"2.1", ""});
    for (int i = 0; i < behaviorCount; ++i)
        package.addBehavior(behavior(i, languageCount));
    return package;
}

} // namespace SamplePackage
