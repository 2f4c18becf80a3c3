#include <packagemodel/issue_report.h>

#include <packagemodel/text_conversion.h>

#include <QStringBuilder>

#include <map>
#include <tuple>

namespace Zel::PackageModel {
namespace {

// Unknown elements and attributes have their own places.
using NodeKey = std::tuple<Tano::FieldPath, std::string, std::string, bool, int>;

NodeKey keyOf(const Tano::UnknownNode &node) {
    return {node.parentPath, node.parent, node.name, node.kind == Tano::UnknownNode::Kind::Element,
            node.index};
}

} // namespace

QLatin1String severityWord(Severity severity) {
    switch (severity) {
    case Severity::Note:
        return QLatin1String("note");
    case Severity::Warning:
        return QLatin1String("warning");
    case Severity::Error:
        break;
    }
    return QLatin1String("error");
}

struct PACKAGEMODEL_NO_EXPORT IssuePlaces::Data {
    const Tano::ManifestReader &reader;
    std::map<NodeKey, Tano::SourcePosition> nodes = {};
};

IssuePlaces::IssuePlaces(const Tano::ManifestReader &reader)
    : m_data(new Data{reader}) {
}

IssuePlaces::~IssuePlaces() = default;

Tano::SourcePosition IssuePlaces::of(const Issue &issue) {
    if (issue.node && m_data->nodes.empty()) {
        for (const Tano::UnknownNode &node : m_data->reader.unknownNodes())
            m_data->nodes.emplace(keyOf(node), node.position);
    }
    const auto node = issue.node ? m_data->nodes.find(keyOf(*issue.node)) : m_data->nodes.end();
    return node == m_data->nodes.end() ? m_data->reader.position(toUtf8(issue.path)) : node->second;
}

QString reportLine(const QString &file, Tano::SourcePosition position, const QString &severity,
                   const QString &text, const QString &rule) {
    return file % u':' % QString::number(position.line) % u':' % QString::number(position.column) %
           QStringLiteral(": ") % severity % QStringLiteral(": ") % text % u' ' % rule;
}

QString reportLine(const QString &file, Tano::SourcePosition position, const Issue &issue) {
    return reportLine(file, position, severityWord(issue.severity), issue.plainText(),
                      u'[' % issue.id % u']');
}

} // namespace Zel::PackageModel
