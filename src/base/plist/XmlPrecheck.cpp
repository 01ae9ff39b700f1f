// SPDX-License-Identifier: GPL-3.0-or-later

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

constexpr bool isSpecial(char c)
{
    return c == '\0' || c == '&' || c == '!' || c == '?';
}

/// The position of the next special character. Whole blocks are tested without a branch, so that the compiler can use
/// vector instructions.
std::size_t nextSpecial(string_view text, std::size_t from)
{
    constexpr std::size_t block = 64;
    for (; text.size() - from >= block; from += block) {
        const char *const bytes = text.data() + from;
        unsigned char any = 0;
        for (std::size_t i = 0; i < block; ++i)
            any |= isSpecial(bytes[i]);
        if (any)
            break;
    }
    while (from < text.size() && !isSpecial(text[from]))
        ++from;
    return from;
}

/// Whether a numeric reference, given without its `&#` and `;`, names a character that XML allows.
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

/// Whether the text after an ampersand begins with a valid numeric reference or an entity that XML predefines.
bool beginsKnownReference(string_view text)
{
    constexpr std::array<string_view, 5> entities = {"amp", "lt", "gt", "quot", "apos"};
    constexpr std::size_t longest = 16;
    text = text.substr(0, longest);
    const auto semicolon = text.find(';');
    if (semicolon == string_view::npos)
        return false;
    const string_view name = text.substr(0, semicolon);
    return name.starts_with('#') ? isCharacter(name.substr(1))
                                 : std::find(entities.begin(), entities.end(), name) != entities.end();
}

struct Markup {
    string_view opening;
    string_view closing;
};

constexpr std::array<Markup, 3> markups = {{{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}}};

/// The comment, CDATA section or processing instruction that begins at `at`; null for anything else, such as a document
/// type.
const Markup *markupAt(string_view text, std::size_t at)
{
    const auto *found = std::find_if(markups.begin(), markups.end(), [rest = text.substr(at)](const Markup &markup) {
        return rest.starts_with(markup.opening);
    });
    return found == markups.end() ? nullptr : found;
}

bool isXmlDeclaration(string_view text, std::size_t at)
{
    return text.substr(at).starts_with("<?xml") && (at == 0 || (at == 3 && text.starts_with(byteOrderMark)));
}

} // namespace

XmlPrecheck precheckXml(string_view text)
{
    XmlPrecheck result;
    for (std::size_t at = nextSpecial(text, 0); at < text.size(); at = nextSpecial(text, at)) {
        const char special = text[at];
        if (special == '\0') {
            result.error = QStringLiteral("a zero byte in the text");
            return result;
        }
        if (special == '&') {
            if (!beginsKnownReference(text.substr(at + 1))) {
                result.error = QStringLiteral("an ampersand that begins no known character");
                return result;
            }
        } else if (const Markup *markup = at > 0 ? markupAt(text, at - 1) : nullptr) {
            result.hasInnerMarkup |= !isXmlDeclaration(text, at - 1);
            const auto end = text.find(markup->closing, at - 1 + markup->opening.size());
            if (end == string_view::npos) {
                result.error = QStringLiteral("%1 without its end")
                                   .arg(QLatin1StringView(markup->opening.data(), qsizetype(markup->opening.size())));
                return result;
            }
            at = end + markup->closing.size();
            continue;
        }
        ++at;
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
