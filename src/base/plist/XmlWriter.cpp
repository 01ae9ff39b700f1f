// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/plist/XmlWriter.h"

#include "base/plist/Scalars.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <string_view>

namespace brinemark::plist
{

namespace
{

using std::string_view;

constexpr string_view head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                             "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                             "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                             "<plist version=\"1.0\">\n";

/// ASCII characters that need no escape in XML text.
constexpr std::array<bool, 128> makePlain()
{
    std::array<bool, 128> plain{};
    for (int c = 0; c < 128; ++c)
        plain[std::size_t(c)] = (c >= ' ' || c == '\t' || c == '\n') && c != '&' && c != '<' && c != '>';
    return plain;
}

constexpr auto plain = makePlain();

bool isWritable(const Value &value)
{
    return !value.isNone() && (!value.date() || value.date()->isValid());
}

/// Writes text straight into one growing buffer: building a DOM only to print it would double time and memory.
class Emitter
{
public:
    QByteArray write(const Value &root)
    {
        put(head);
        writeValue(root, 0);
        put("</plist>\n");
        m_buffer.truncate(m_used);
        return std::move(m_buffer);
    }

private:
    void writeValue(const Value &value, int level)
    {
        indent(level);
        if (const auto *string = value.string())
            element("<string>", *string, "</string>\n");
        else if (const auto *dict = value.dict())
            writeDict(*dict, level);
        else if (const auto *array = value.array())
            writeArray(*array, level);
        else if (const auto *data = value.data())
            writeData(*data, level);
        else
            writeScalar(value);
    }

    void writeScalar(const Value &value)
    {
        if (const auto *integer = value.integer()) {
            std::array<char, 24> digits;
            const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), *integer).ptr;
            element("<integer>", string_view(digits.data(), std::size_t(end - digits.data())), "</integer>\n");
        } else if (const auto *real = value.real()) {
            element("<real>", realText(*real), "</real>\n");
        } else if (const auto *flag = value.flag()) {
            put(*flag ? "<true/>\n" : "<false/>\n");
        } else if (const auto *date = value.date()) {
            element("<date>", dateText(*date), "</date>\n");
        }
    }

    void writeDict(const Dict &dict, int level)
    {
        const auto writable = [](const Dict::Entry &entry) { return isWritable(entry.second); };
        if (std::none_of(dict.begin(), dict.end(), writable)) {
            put("<dict/>\n");
            return;
        }
        put("<dict>\n");
        for (const auto &entry : dict) {
            if (!writable(entry))
                continue;
            indent(level + 1);
            element("<key>", entry.first, "</key>\n");
            writeValue(entry.second, level + 1);
        }
        indent(level);
        put("</dict>\n");
    }

    void writeArray(const Array &array, int level)
    {
        if (std::none_of(array.begin(), array.end(), isWritable)) {
            put("<array/>\n");
            return;
        }
        put("<array>\n");
        for (const Value &value : array) {
            if (isWritable(value))
                writeValue(value, level + 1);
        }
        indent(level);
        put("</array>\n");
    }

    /// Lines end at column 76, a tab counted as eight, and keep at least 16 characters.
    void writeData(const QByteArray &data, int level)
    {
        const auto width = qsizetype(std::max(16, 76 - 8 * level));
        const QByteArray text = data.toBase64();
        put("<data>\n");
        for (qsizetype at = 0; at < text.size(); at += width) {
            indent(level);
            put(string_view(text.constData() + at, std::size_t(std::min(width, text.size() - at))));
            put("\n");
        }
        indent(level);
        put("</data>\n");
    }

    /// For a text that needs no escapes: a number or a date.
    void element(string_view opening, string_view text, string_view closing)
    {
        put(opening);
        put(text);
        put(closing);
    }

    void element(string_view opening, const QByteArray &text, string_view closing)
    {
        element(opening, string_view(text.constData(), std::size_t(text.size())), closing);
    }

    void element(string_view opening, const QString &text, string_view closing)
    {
        put(opening);
        putEscaped(text);
        put(closing);
    }

    /// Makes room for `count` more bytes and returns its address; the caller writes there and then advances `m_used`.
    char *room(qsizetype count)
    {
        if (m_buffer.size() - m_used < count)
            m_buffer.resize(std::max(m_buffer.size() * 2, m_used + count + 4096));
        return m_buffer.data() + m_used;
    }

    void put(string_view text)
    {
        std::memcpy(room(qsizetype(text.size())), text.data(), text.size());
        m_used += qsizetype(text.size());
    }

    void putEscaped(const QString &text)
    {
        constexpr qsizetype longest = 5; // the length of "&amp;"; UTF-8 needs at most three bytes for a UTF-16 unit
        char *out = room(text.size() * longest);
        const char *const start = out;
        const auto *in = reinterpret_cast<const char16_t *>(text.constData());
        const auto *const end = in + text.size();
        while (in != end) {
            const char16_t unit = *in++;
            if (unit < 128 && plain[unit])
                *out++ = char(unit);
            else
                putOther(out, unit, in, end);
        }
        m_used += out - start;
    }

    /// Writes a unit that is not `plain`; also consumes the second unit of a surrogate pair.
    static void putOther(char *&out, char16_t unit, const char16_t *&in, const char16_t *end)
    {
        const auto append = [&out](string_view text) {
            std::memcpy(out, text.data(), text.size());
            out += text.size();
        };
        switch (unit) {
        case u'&':
            append("&amp;");
            return;
        case u'<':
            append("&lt;");
            return;
        case u'>':
            append("&gt;");
            return;
        case u'\r':
            append("&#13;");
            return;
        default:
            break;
        }
        if (unit < 0x20 || unit >= 0xfffe)
            return;
        char32_t code = unit;
        if (QChar::isSurrogate(unit)) {
            if (!QChar::isHighSurrogate(unit) || in == end || !QChar::isLowSurrogate(*in))
                return;
            code = QChar::surrogateToUcs4(unit, *in++);
        }
        const auto tail = [code](int shift) { return char(0x80 | (code >> shift & 0x3f)); };
        if (code < 0x80) {
            *out++ = char(code);
        } else if (code < 0x800) {
            *out++ = char(0xc0 | code >> 6);
            *out++ = tail(0);
        } else if (code < 0x10000) {
            *out++ = char(0xe0 | code >> 12);
            *out++ = tail(6);
            *out++ = tail(0);
        } else {
            *out++ = char(0xf0 | code >> 18);
            *out++ = tail(12);
            *out++ = tail(6);
            *out++ = tail(0);
        }
    }

    void indent(int level)
    {
        std::memset(room(level), '\t', std::size_t(level));
        m_used += level;
    }

    QByteArray m_buffer;
    qsizetype m_used = 0;
};

} // namespace

QByteArray writeXml(const Value &root)
{
    return isWritable(root) ? Emitter().write(root) : QByteArray();
}

} // namespace brinemark::plist
