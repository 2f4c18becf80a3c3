#include <tano/field_path.h>

#include <algorithm>
#include <charconv>
#include <ostream>

namespace Tano {
namespace {

constexpr char escape = '\\';
constexpr std::string_view endSelector = "+";

void appendSelector(std::string &text, const FieldPath::Selector &selector) {
    text += '[';
    if (selector.appends) {
        text += endSelector;
    } else if (selector.text == endSelector) {
        (text += escape) += endSelector;
    } else {
        for (const char c : selector.text) {
            if (c == ']' || c == escape)
                text += escape;
            text += c;
        }
    }
    text += ']';
}

class Parser {
public:
    explicit Parser(std::string_view text)
        : m_text(text) {}

    std::optional<FieldPath> parse() {
        FieldPath path;
        while (m_at < m_text.size()) {
            if (!path.isEmpty() && !skipDot())
                return {};
            if (!parseField(path))
                return {};
            while (isAt('[')) {
                if (!parseSelector(path))
                    return {};
            }
        }
        return path;
    }

    FieldPath::Error error() const { return {m_message, m_at}; }

private:
    bool isAt(char c) const { return m_at < m_text.size() && m_text[m_at] == c; }

    bool fail(const char *message) {
        m_message = message;
        return false;
    }

    bool skipDot() {
        if (!isAt('.'))
            return fail("A \".\" or \"[\" is missing after the selector.");
        ++m_at;
        return true;
    }

    bool parseField(FieldPath &path) {
        const std::size_t end = std::min(m_text.find_first_of(".[]\\", m_at), m_text.size());
        if (end == m_at)
            return fail("The name of a field is missing.");
        path.field(m_text.substr(m_at, end - m_at));
        m_at = end;
        const bool isBad = isAt(']') || isAt(escape);
        return !isBad || fail("The name of a field cannot contain \"]\" or \"\\\".");
    }

    bool parseSelector(FieldPath &path) {
        const std::size_t start = m_at++;
        std::string key;
        bool isEscaped = false;
        for (; !isAt(']'); ++m_at) {
            if (isAt(escape)) {
                ++m_at;
                isEscaped = true;
                if (!isAt(']') && !isAt(escape) && !isAt('+'))
                    return fail("A \"\\\" must precede \"]\", \"\\\" or \"+\".");
            }
            if (m_at >= m_text.size()) {
                m_at = start;
                return fail("The \"]\" of this selector is missing.");
            }
            key += m_text[m_at];
        }
        ++m_at;
        if (key == endSelector && !isEscaped)
            path.end();
        else
            path.key(key);
        return true;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    const char *m_message = "";
};

} // namespace

std::optional<int> FieldPath::Selector::toIndex() const {
    int number = 0;
    const char *last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    const bool isPlain = text == "0" || (!text.empty() && text[0] >= '1' && text[0] <= '9');
    if (appends || error != std::errc() || end != last || !isPlain)
        return {};
    return number;
}

std::optional<FieldPath> FieldPath::parse(std::string_view text, Error *error) {
    Parser parser(text);
    auto path = parser.parse();
    if (!path && error)
        *error = parser.error();
    return path;
}

std::size_t FieldPath::find(std::string_view text, char character) {
    bool isInSelector = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!isInSelector && text[i] == character)
            return i;
        if (isInSelector && text[i] == escape)
            ++i;
        else if (text[i] == '[' || text[i] == ']')
            isInSelector = text[i] == '[';
    }
    return std::string_view::npos;
}

const std::vector<FieldPath::Step> &FieldPath::steps() const {
    static const std::vector<Step> none;
    return m_steps ? *m_steps : none;
}

std::vector<FieldPath::Step> &FieldPath::edit() {
    if (!m_steps)
        m_steps = std::make_shared<std::vector<Step>>();
    else if (m_steps.use_count() > 1)
        m_steps = std::make_shared<std::vector<Step>>(*m_steps);
    return *m_steps;
}

std::string FieldPath::toString() const {
    std::string text;
    for (const Step &step : steps()) {
        if (!text.empty())
            text += '.';
        text += step.field;
        for (const Selector &selector : step.selectors)
            appendSelector(text, selector);
    }
    return text;
}

FieldPath &FieldPath::field(std::string_view name) {
    edit().push_back({std::string(name), {}});
    return *this;
}

FieldPath &FieldPath::key(std::string_view key) {
    if (!isEmpty())
        edit().back().selectors.push_back({std::string(key), false});
    return *this;
}

FieldPath &FieldPath::index(int index) {
    return key(std::to_string(index));
}

FieldPath &FieldPath::entry(std::string_view key, int index) {
    this->key(key);
    return index > 0 ? this->index(index) : *this;
}

FieldPath &FieldPath::end() {
    if (!isEmpty())
        edit().back().selectors.push_back({std::string(endSelector), true});
    return *this;
}

FieldPath FieldPath::parent() const {
    FieldPath path = *this;
    if (path.isEmpty())
        return path;
    auto &steps = path.edit();
    auto &selectors = steps.back().selectors;
    if (selectors.empty())
        steps.pop_back();
    else
        selectors.pop_back();
    return path;
}

std::ostream &operator<<(std::ostream &stream, const FieldPath &path) {
    return stream << path.toString();
}

} // namespace Tano
