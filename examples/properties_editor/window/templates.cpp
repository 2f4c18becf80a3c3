#include "templates.h"

#include <QCoreApplication>

#include <array>
#include <utility>

// Registers the resources of a static library; must be outside of any namespace.
static void initTemplates() {
    Q_INIT_RESOURCE(templates);
}

namespace Editor {

QVector<Template> templates() {
    initTemplates();
    constexpr std::array rows{
        std::pair{":/templates/empty.xml",
                  QT_TRANSLATE_NOOP("Editor::FileActions", "Empty Package")},
        std::pair{":/templates/behavior.xml",
                  QT_TRANSLATE_NOOP("Editor::FileActions", "Behavior Started by a Sentence")},
        std::pair{":/templates/service.xml",
                  QT_TRANSLATE_NOOP("Editor::FileActions", "Service in the Background")},
    };
    QVector<Template> templates;
    for (const auto &[resource, name] : rows)
        templates.append(
            {QCoreApplication::translate("Editor::FileActions", name), QLatin1String(resource)});
    return templates;
}

} // namespace Editor
