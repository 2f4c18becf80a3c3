#pragma once

#include <QtGlobal>

#include <array>

namespace Editor {

/// A list of texts of a behavior, and the texts of its tab.
struct ListTab {
    const char *field;
    const char *title;
    const char *placeholder;
    const char *purpose; // shown while the list is empty
};

inline constexpr std::array listTabs{
    ListTab{"triggerSentences", QT_TRANSLATE_NOOP("Editor::BehaviorDetails", "Trigger sentences"),
            QT_TRANSLATE_NOOP("Editor::BehaviorDetails", "A sentence that starts the behavior"),
            QT_TRANSLATE_NOOP("Editor::BehaviorDetails",
                              "What people say to start the behavior. Type a sentence below.")},
    ListTab{
        "loadingResponses", QT_TRANSLATE_NOOP("Editor::BehaviorDetails", "Responses"),
        QT_TRANSLATE_NOOP("Editor::BehaviorDetails", "What the robot says while it loads"),
        QT_TRANSLATE_NOOP("Editor::BehaviorDetails",
                          "What the robot says until the behavior starts. Type a sentence below.")},
    ListTab{"tags", QT_TRANSLATE_NOOP("Editor::BehaviorDetails", "Tags"),
            QT_TRANSLATE_NOOP("Editor::BehaviorDetails", "A new tag"),
            QT_TRANSLATE_NOOP("Editor::BehaviorDetails",
                              "Words that group behaviors. Type a tag below.")},
    ListTab{"conditions", QT_TRANSLATE_NOOP("Editor::BehaviorDetails", "Conditions"),
            QT_TRANSLATE_NOOP("Editor::BehaviorDetails", "A new condition for this purpose"),
            QT_TRANSLATE_NOOP("Editor::BehaviorDetails",
                              "What has to hold for the behavior to run. Type a condition below.")},
    ListTab{"permissions", QT_TRANSLATE_NOOP("Editor::BehaviorDetails", "Permissions"),
            QT_TRANSLATE_NOOP("Editor::BehaviorDetails", "A new permission"),
            QT_TRANSLATE_NOOP("Editor::BehaviorDetails",
                              "What the behavior uses of the robot. Type a permission below.")},
};

} // namespace Editor
