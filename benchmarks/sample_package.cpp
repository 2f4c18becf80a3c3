#include "sample_package.h"

#include <array>

namespace SamplePackage {
namespace {

// The texts of a behavior in one language; "#" is replaced by its number.
struct Texts {
    const char *code;
    const char *name;
    const char *description;
    std::array<const char *, 2> tags;
    std::array<const char *, 3> triggerSentences;
    std::array<const char *, 2> loadingResponses;
};

const std::array texts{
    Texts{"en_US",
          "Visit to workshop #",
          "Leads a visitor to workshop #, tells what is made there & waits at the door.",
          {"workshop #", "visitors"},
          {"Where is workshop # and how do I get there?", "Take me to number #, please.",
           "Let us go and see what they make in number #."},
          {"Workshop # it is. Follow me!", "One moment, I am looking up the way to number #."}},
    Texts{"fr_FR",
          "Visite de l'atelier #",
          "Conduit le visiteur à l'atelier #, raconte ce qu'on y fabrique et attend à la porte.",
          {"atelier #", "visiteurs"},
          {"Où se trouve l'atelier # et comment y aller ?",
           "Emmène-moi au numéro #, s'il te plaît.", "Allons voir ce qu'on fait au numéro #."},
          {"Va pour l'atelier #. Suivez-moi !", "Un instant, je cherche le chemin du numéro #."}},
    Texts{"ja_JP",
          "第#工房の見学",
          "来館者を第#工房へ案内し、そこで作られているものを説明して、入口で待ちます。",
          {"第#工房", "来館者"},
          {"第#工房はどこですか。", "#番の工房まで連れて行ってください。",
           "#番で何を作っているのか見に行きましょう。"},
          {"第#工房ですね。こちらへどうぞ。", "少々お待ちください。道を調べています。"}},
};

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

Tano::BehaviorInfo behavior(int index) {
    const std::string number = std::to_string(index + 1);
    Tano::BehaviorInfo behavior;
    behavior.setPath(path(index));
    behavior.setNature(Tano::BehaviorInfo::natureInteractive());
    behavior.setUserRequestable(true);
    behavior.addPermission("walk");
    behavior.addCondition("door " + number + " is open", "launch");
    for (const Texts &in : texts) {
        behavior.setName(numbered(in.name, number), in.code);
        behavior.setDescription(numbered(in.description, number), in.code);
        for (const char *tag : in.tags)
            behavior.addTag(numbered(tag, number), in.code);
        for (const char *sentence : in.triggerSentences)
            behavior.addTriggerSentence(numbered(sentence, number), in.code);
        for (const char *response : in.loadingResponses)
            behavior.addLoadingResponse(numbered(response, number), in.code);
    }
    return behavior;
}

Tano::PackageInfo package(int behaviorCount) {
    Tano::PackageInfo package;
    package.setUuid("workshop-guide");
    package.setVersion("1.4.0");
    package.setAuthor("Ines Moreau");
    for (const Texts &in : texts) {
        package.addSupportedLanguage(in.code);
        package.addDescriptionLanguage(in.code);
        package.setName(numbered(in.name, "0"), in.code);
        package.setDescription(numbered(in.description, "0"), in.code);
    }
    package.addRobotRequirement({"", "", "", "1.0", "2.5"});
    package.addBrioRequirement({"2.1", ""});
    for (int i = 0; i < behaviorCount; ++i)
        package.addBehavior(behavior(i));
    return package;
}

} // namespace SamplePackage
