// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/plist/TextReader.h"

#include "base/plist/Encoding.h"

#include <optional>

namespace brinemark::plist
{

namespace
{

bool isUnquoted(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
           QStringView(u"_./-:$+").contains(c);
}

/// The value of a hexadecimal digit, -1 for any other character.
int hexDigit(QChar c)
{
    const char16_t unit = c.unicode();
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    const char16_t lower = unit | 0x20;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

bool isOctalDigit(QChar c)
{
    return c >= u'0' && c <= u'7';
}

/// Parses the text in one pass. The read functions return nothing once `m_error` is set.
class TextParser
{
public:
    explicit TextParser(QStringView text)
        : m_text(text)
    {
    }

    ReadResult read()
    {
        Value root = readValue(1);
        if (m_error.isEmpty() && skipSpace() && !atEnd())
            fail(QStringLiteral("text after the end of the list"));
        if (!m_error.isEmpty())
            return {Value(), m_error};
        return {std::move(root), QString()};
    }

private:
    Value fail(const QString &reason)
    {
        if (m_error.isEmpty())
            m_error = QStringLiteral("%1 (line %2)").arg(reason).arg(m_text.first(m_at).count(u'\n') + 1);
        return Value();
    }

    bool atEnd() const { return m_at >= m_text.size(); }
    /// The character `ahead` positions further on; a null character beyond the end.
    QChar peek(qsizetype ahead = 0) const { return m_at + ahead < m_text.size() ? m_text[m_at + ahead] : QChar(); }

    bool take(QChar c)
    {
        if (atEnd() || m_text[m_at] != c)
            return false;
        ++m_at;
        return true;
    }

    /// Skips white space and comments; false for a comment that is not closed.
    bool skipSpace()
    {
        while (!atEnd()) {
            if (peek().isSpace()) {
                ++m_at;
            } else if (peek() == u'/' && peek(1) == u'/') {
                while (!atEnd() && peek() != u'\n' && peek() != u'\r')
                    ++m_at;
            } else if (peek() == u'/' && peek(1) == u'*') {
                const auto end = m_text.indexOf(QStringView(u"*/"), m_at + 2);
                if (end < 0) {
                    fail(QStringLiteral("a comment without its end"));
                    return false;
                }
                m_at = end + 2;
            } else {
                break;
            }
        }
        return true;
    }

    Value readValue(int depth)
    {
        if (!skipSpace())
            return Value();
        if (depth > maximumDepth && (peek() == u'{' || peek() == u'('))
            return fail(QStringLiteral("nested too deep"));
        if (take(u'{'))
            return readDict(depth);
        if (take(u'('))
            return readArray(depth);
        if (take(u'<'))
            return readData();
        const auto string = readString();
        return string ? Value(*string) : Value();
    }

    Value readDict(int depth)
    {
        std::vector<Dict::Entry> entries;
        while (skipSpace()) {
            if (take(u'}'))
                return Value(Dict(std::move(entries)));
            auto key = readString();
            if (!key || !skipSpace())
                break;
            if (!take(u'='))
                return fail(QStringLiteral("a key without an equals sign"));
            Value value = readValue(depth + 1);
            if (value.isNone() || !skipSpace())
                break;
            if (!take(u';'))
                return fail(QStringLiteral("a dictionary entry without a semicolon"));
            entries.emplace_back(std::move(*key), std::move(value));
        }
        return Value();
    }

    Value readArray(int depth)
    {
        Array array;
        bool separated = true;
        while (skipSpace()) {
            if (take(u')'))
                return Value(std::move(array));
            if (!separated)
                return fail(QStringLiteral("array elements without a comma between them"));
            Value value = readValue(depth + 1);
            if (value.isNone() || !skipSpace())
                break;
            array.push_back(std::move(value));
            separated = take(u',');
        }
        return Value();
    }

    Value readData()
    {
        QByteArray data;
        int high = -1;
        while (!atEnd()) {
            const QChar c = m_text[m_at++];
            if (c == u'>')
                return high < 0 ? Value(data) : fail(QStringLiteral("data with half a byte at its end"));
            if (c.isSpace())
                continue;
            const int digit = hexDigit(c);
            if (digit < 0)
                return fail(QStringLiteral("data with something other than hexadecimal digits"));
            if (high < 0) {
                high = digit;
            } else {
                data.append(char(high << 4 | digit));
                high = -1;
            }
        }
        return fail(QStringLiteral("data without its end"));
    }

    std::optional<QString> readString()
    {
        if (peek() == u'"' || peek() == u'\'')
            return readQuoted(m_text[m_at++]);
        const qsizetype start = m_at;
        while (!atEnd() && isUnquoted(peek()))
            ++m_at;
        if (m_at > start)
            return m_text.sliced(start, m_at - start).toString();
        fail(atEnd() ? QStringLiteral("the text ends too early") : QStringLiteral("an unexpected character"));
        return std::nullopt;
    }

    std::optional<QString> readQuoted(QChar quote)
    {
        QString string;
        while (!atEnd()) {
            const QChar c = m_text[m_at++];
            if (c == quote)
                return string;
            if (c != u'\\') {
                string += c;
                continue;
            }
            if (atEnd())
                break;
            const auto escaped = readEscape();
            if (!escaped)
                return std::nullopt;
            string += *escaped;
        }
        fail(QStringLiteral("a quoted string without its end"));
        return std::nullopt;
    }

    /// Reads an escape sequence, without its backslash, and returns the character that it means.
    std::optional<QChar> readEscape()
    {
        constexpr QStringView letters = u"ntrabfv";
        constexpr QStringView meanings = u"\n\t\r\a\b\f\v";
        if (isOctalDigit(peek()))
            return readOctal();
        const QChar c = m_text[m_at++];
        if (c == u'U' || c == u'u')
            return readUnit();
        const auto letter = letters.indexOf(c);
        return letter < 0 ? c : meanings[letter];
    }

    std::optional<QChar> readOctal()
    {
        int code = 0;
        for (int i = 0; i < 3 && isOctalDigit(peek()); ++i)
            code = code * 8 + (m_text[m_at++].unicode() - u'0');
        if (code <= 0xff)
            return QChar(code);
        fail(QStringLiteral("an octal escape beyond 377"));
        return std::nullopt;
    }

    std::optional<QChar> readUnit()
    {
        int code = 0;
        for (int i = 0; i < 4; ++i) {
            const int digit = hexDigit(peek());
            if (digit < 0) {
                fail(QStringLiteral("an escaped character without four hexadecimal digits"));
                return std::nullopt;
            }
            code = code << 4 | digit;
            ++m_at;
        }
        return QChar(code);
    }

    QStringView m_text;
    qsizetype m_at = 0;
    QString m_error;
};

} // namespace

ReadResult readText(const QByteArray &bytes)
{
    QByteArray utf8 = bytes;
    if (QString error = convertToUtf8(utf8); !error.isEmpty())
        return {Value(), error};
    QString text = QString::fromUtf8(utf8);
    if (text.startsWith(QChar::ByteOrderMark))
        text.remove(0, 1);
    return TextParser(text).read();
}

} // namespace brinemark::plist
