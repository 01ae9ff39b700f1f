#include "base/plist/XmlPrecheck.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace brinemark::plist
{

namespace
{

using std::string_view;

constexpr string_view byteOrderMark = "\xef\xbb\xbf";

/// Finds the next `<!` or `<?`. Looks for the second character: the first one opens every tag.
class MarkupFinder
{
public:
    MarkupFinder(string_view text, char second)
        : m_text(text)
        , m_second(second)
    {
    }

    std::size_t from(std::size_t position)
    {
        if (m_next == string_view::npos || (m_searched && m_next >= position))
            return m_next;
        m_searched = true;
        std::size_t at = position;
        do {
            at = m_text.find(m_second, at + 1);
        } while (at != string_view::npos && m_text[at - 1] != '<');
        m_next = at == string_view::npos ? at : at - 1;
        return m_next;
    }

private:
    string_view m_text;
    char m_second;
    bool m_searched = false;
    std::size_t m_next = 0;
};

/// The character a numeric reference stands for, given without its `&#` and `;`, is one that XML can hold.
bool isCharacter(string_view digits)
{
    const bool hex = digits.starts_with('x');
    if (hex)
        digits.remove_prefix(1);
    unsigned code = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, hex ? 16 : 10);
    if (error != std::errc() || end != digits.data() + digits.size())
        return false;
    if (code < 0x20)
        return code == '\t' || code == '\n' || code == '\r';
    return code < 0xd800 || (code >= 0xe000 && code < 0xfffe) || (code >= 0x10000 && code < 0x110000);
}

bool hasOnlyKnownReferences(string_view text)
{
    constexpr std::array<string_view, 5> entities = {"amp", "lt", "gt", "quot", "apos"};
    constexpr std::size_t longest = 16;
    for (auto at = text.find('&'); at != string_view::npos; at = text.find('&', at + 1)) {
        const string_view rest = text.substr(at + 1, longest);
        const auto semicolon = rest.find(';');
        if (semicolon == string_view::npos)
            return false;
        const string_view name = rest.substr(0, semicolon);
        const bool known = name.starts_with('#') ? isCharacter(name.substr(1))
                                                 : std::find(entities.begin(), entities.end(), name) != entities.end();
        if (!known)
            return false;
    }
    return true;
}

struct Markup {
    string_view opening;
    string_view closing;
};

constexpr std::array<Markup, 3> markups = {{{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}}};

bool isXmlDeclaration(string_view text, std::size_t at)
{
    return text.substr(at).starts_with("<?xml") && (at == 0 || (at == 3 && text.starts_with(byteOrderMark)));
}

} // namespace

XmlPrecheck precheckXml(string_view text)
{
    XmlPrecheck result;
    if (text.find('\0') != string_view::npos) {
        result.error = QStringLiteral("a zero byte in the text");
        return result;
    }
    MarkupFinder exclamation(text, '!');
    MarkupFinder question(text, '?');
    std::size_t position = 0;
    while (position < text.size()) {
        const std::size_t next = std::min(exclamation.from(position), question.from(position));
        if (!hasOnlyKnownReferences(text.substr(position, next == string_view::npos ? next : next - position))) {
            result.error = QStringLiteral("an ampersand that begins no known character");
            return result;
        }
        if (next == string_view::npos)
            break;
        position = next + 2; // the document type: its text is looked at like any other
        for (const Markup &markup : markups) {
            if (!text.substr(next).starts_with(markup.opening))
                continue;
            result.hasInnerMarkup |= !isXmlDeclaration(text, next);
            const auto end = text.find(markup.closing, next + markup.opening.size());
            if (end == string_view::npos) {
                result.error = QStringLiteral("%1 without its end")
                                   .arg(QLatin1StringView(markup.opening.data(), qsizetype(markup.opening.size())));
                return result;
            }
            position = end + markup.closing.size();
            break;
        }
    }
    return result;
}

string_view declaredEncoding(string_view text)
{
    if (!text.starts_with("<?xml"))
        return {};
    const string_view declaration = text.substr(0, text.find("?>"));
    const auto key = declaration.find("encoding");
    const auto opening = declaration.find_first_of("\"'", key);
    if (key == string_view::npos || opening == string_view::npos)
        return {};
    const auto closing = declaration.find(declaration[opening], opening + 1);
    return closing == string_view::npos ? string_view() : declaration.substr(opening + 1, closing - opening - 1);
}

} // namespace brinemark::plist
