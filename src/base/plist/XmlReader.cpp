// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/plist/XmlReader.h"

#include "base/plist/Base64.h"
#include "base/plist/Encoding.h"
#include "base/plist/Scalars.h"
#include "base/plist/StringPool.h"
#include "base/plist/XmlPrecheck.h"

#include <pugixml.hpp>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

namespace brinemark::plist
{

namespace
{

using std::string_view;

bool isBlank(string_view text)
{
    return text.find_first_not_of(" \t\r\n") == string_view::npos;
}

bool isNamed(pugi::xml_node node, const char *name)
{
    return std::strcmp(node.name(), name) == 0;
}

/// Builds the value from the parsed tree. The functions that build a value return no value once `m_error` is set.
class TreeWalk
{
public:
    ReadResult read(pugi::xml_node document)
    {
        const pugi::xml_node plist = onlyElement(document, "the file");
        if (m_error.isEmpty() && !isNamed(plist, "plist"))
            fail(plist, QStringLiteral("the outermost element is not <plist>"));
        const pugi::xml_node root = m_error.isEmpty() ? onlyElement(plist, "<plist>") : pugi::xml_node();
        Value value = m_error.isEmpty() ? readValue(root, 1) : Value();
        if (!m_error.isEmpty())
            return {Value(), m_error};
        return {std::move(value), QString()};
    }

private:
    Value fail(pugi::xml_node node, const QString &reason)
    {
        if (m_error.isEmpty())
            m_error = QStringLiteral("%1 (near byte %2)").arg(reason).arg(node.offset_debug());
        return Value();
    }

    /// The first element at or after `node`; text other than white space before it is an error.
    pugi::xml_node elementFrom(pugi::xml_node node)
    {
        while (node && node.type() != pugi::node_element) {
            if (!isBlank(node.value())) {
                fail(node, QStringLiteral("text between elements"));
                return {};
            }
            node = node.next_sibling();
        }
        return node;
    }

    pugi::xml_node firstElement(pugi::xml_node parent)
    {
        if (!isBlank(parent.value())) {
            fail(parent, QStringLiteral("text between elements"));
            return {};
        }
        return elementFrom(parent.first_child());
    }

    pugi::xml_node onlyElement(pugi::xml_node parent, const char *where)
    {
        const pugi::xml_node element = firstElement(parent);
        if (m_error.isEmpty() && !element)
            fail(parent, QStringLiteral("%1 holds nothing").arg(QLatin1StringView(where)));
        if (m_error.isEmpty() && elementFrom(element.next_sibling()))
            fail(element, QStringLiteral("%1 holds more than one element").arg(QLatin1StringView(where)));
        return element;
    }

    Value readValue(pugi::xml_node node, int depth)
    {
        if (isNamed(node, "string")) {
            const QString *string = readString(node);
            return string ? Value(*string) : Value();
        }
        const string_view name = node.name();
        if (name == "dict" || name == "array") {
            if (depth > maximumDepth)
                return fail(node, QStringLiteral("nested too deep"));
            return name == "dict" ? readDict(node, depth) : readArray(node, depth);
        }
        const auto text = textOf(node);
        if (!text)
            return Value();
        const auto scalar = readScalar(name, *text);
        if (!scalar)
            return fail(node, QStringLiteral("<%1> is no element of a property list")
                                  .arg(QString::fromUtf8(name.data(), qsizetype(name.size()))));
        if (scalar->isNone())
            return fail(node, QStringLiteral("the text of <%1> cannot be read")
                                  .arg(QLatin1StringView(name.data(), qsizetype(name.size()))));
        return *scalar;
    }

    /// Returns nullopt for an unknown element, and a Value without content for a text that does not fit its element.
    static std::optional<Value> readScalar(string_view name, string_view text)
    {
        if (name == "true" || name == "false")
            return isBlank(text) ? Value(name == "true") : Value();
        if (name == "data") {
            const auto data = decodeBase64(text);
            return data ? Value(*data) : Value();
        }
        if (name == "integer")
            return parseInteger(text);
        if (name == "real")
            return parseReal(text);
        if (name == "date")
            return parseDate(text);
        return std::nullopt;
    }

    Value readArray(pugi::xml_node node, int depth)
    {
        Array array;
        array.reserve(std::size_t(std::distance(node.begin(), node.end())));
        for (pugi::xml_node child = firstElement(node); child && m_error.isEmpty();) {
            array.push_back(readValue(child, depth + 1));
            child = elementFrom(leave(node, child));
        }
        return m_error.isEmpty() ? Value(std::move(array)) : Value();
    }

    Value readDict(pugi::xml_node node, int depth)
    {
        std::vector<Dict::Entry> entries;
        entries.reserve(std::min(m_previousSize, largestGuess));
        for (pugi::xml_node child = firstElement(node); child && m_error.isEmpty();) {
            if (!isNamed(child, "key"))
                return fail(child, QStringLiteral("a dictionary holds something other than a key before a value"));
            const QString *key = readString(child);
            const pugi::xml_node value = key ? elementFrom(child.next_sibling()) : pugi::xml_node();
            if (!value || isNamed(value, "key"))
                return fail(child, QStringLiteral("a key without a value"));
            entries.emplace_back(*key, Value());
            entries.back().second = readValue(value, depth + 1);
            child = elementFrom(leave(node, value));
        }
        if (entries.size() < entries.capacity())
            entries.shrink_to_fit();
        m_previousSize = entries.size();
        return m_error.isEmpty() ? Value(Dict(std::move(entries))) : Value();
    }

    /// Returns the node after `child`. Removes a child that has children, since its value has been built: the tree
    /// shrinks while the values grow, and the two are never whole in memory together. After an error nothing is
    /// removed: pugixml removes recursively, and a refused node may be nested deeper than the stack allows.
    pugi::xml_node leave(pugi::xml_node parent, pugi::xml_node child) const
    {
        const pugi::xml_node next = child.next_sibling();
        if (m_error.isEmpty() && child.first_child())
            parent.remove_child(child);
        return next;
    }

    /// The text of an element; null when it contains an element. Valid until the next call.
    const QString *readString(pugi::xml_node node)
    {
        const auto text = textOf(node);
        return text ? &m_strings.string(*text) : nullptr;
    }

    /// The text of an element. It has child nodes only where a comment or CDATA section interrupts the text.
    std::optional<string_view> textOf(pugi::xml_node node)
    {
        if (!node.first_child())
            return node.value();
        m_joined = node.value();
        for (auto child = node.first_child(); child; child = child.next_sibling()) {
            if (child.type() == pugi::node_element) {
                fail(child, QStringLiteral("an element inside <%1>").arg(QLatin1StringView(node.name())));
                return std::nullopt;
            }
            m_joined += child.value();
        }
        return m_joined;
    }

    StringPool m_strings;
    std::string m_joined;
    QString m_error;
    /// Size of the dictionary read last, reserved for the next one: the records of a list have the same keys, and
    /// counting the nodes of each first takes longer.
    std::size_t m_previousSize = 0;
    static constexpr std::size_t largestGuess = 64;
};

} // namespace

ReadResult readXml(QByteArray bytes)
{
    const auto view = [&bytes] { return string_view(bytes.constData(), std::size_t(bytes.size())); };
    const auto declared = declaredEncoding(view());
    if (QString error = convertToUtf8(bytes, QByteArrayView(declared.data(), qsizetype(declared.size())));
        !error.isEmpty())
        return {Value(), error};
    const XmlPrecheck precheck = precheckXml(view());
    if (!precheck.error.isEmpty())
        return {Value(), precheck.error};

    // Parsing in place overwrites the last byte with a terminator, so a wrong character there would not be noticed.
    if (!bytes.endsWith('\n'))
        bytes.append('\n');
    // parse_fragment, because pugixml otherwise ignores text outside the root element. White space between elements is
    // kept only when strings may consist of several pieces: in a large file it would double the tree.
    const unsigned flags = pugi::parse_embed_pcdata | pugi::parse_escapes | pugi::parse_cdata | pugi::parse_eol |
                           pugi::parse_fragment |
                           (precheck.hasInnerMarkup ? pugi::parse_ws_pcdata : pugi::parse_ws_pcdata_single);
    pugi::xml_document document;
    const auto parsed =
        document.load_buffer_inplace(bytes.data(), std::size_t(bytes.size()), flags, pugi::encoding_utf8);
    if (!parsed) {
        return {Value(),
                QStringLiteral("%1 (near byte %2)").arg(QLatin1StringView(parsed.description())).arg(parsed.offset)};
    }
    return TreeWalk().read(document);
}

} // namespace brinemark::plist
