// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/plist/Encoding.h"

#include <QStringDecoder>

namespace brinemark::plist
{

namespace
{

/// The encoding that a byte order mark announces; none for UTF-8 and without a mark. Does not guess from the content.
std::optional<QStringConverter::Encoding> markedEncoding(const QByteArray &bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes);
    if (!encoding || *encoding == QStringConverter::Utf8)
        return std::nullopt;
    return encoding;
}

bool isIso88591(QByteArrayView name)
{
    return name.compare("iso-8859-1", Qt::CaseInsensitive) == 0;
}

bool isUtf8Compatible(QByteArrayView name)
{
    // "UTF-16" without a byte order mark counts as UTF-8: some program converted the file but left the declaration.
    return name.isEmpty() || name.compare("us-ascii", Qt::CaseInsensitive) == 0 ||
           name.compare("ascii", Qt::CaseInsensitive) == 0 || name.toByteArray().toLower().startsWith("utf");
}

} // namespace

QString convertToUtf8(QByteArray &bytes, QByteArrayView declared)
{
    auto encoding = markedEncoding(bytes);
    if (!encoding && isIso88591(declared))
        encoding = QStringConverter::Latin1;
    if (!encoding) {
        if (!isUtf8Compatible(declared))
            return QStringLiteral("unknown character encoding %1").arg(QString::fromLatin1(declared.toByteArray()));
        return bytes.isValidUtf8() ? QString() : QStringLiteral("the text is not valid UTF-8");
    }
    QStringDecoder decoder(*encoding);
    const QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return QStringLiteral("the text is not valid %1")
            .arg(QLatin1StringView(QStringConverter::nameForEncoding(*encoding)));
    bytes = text.toUtf8();
    // The decoder reports no error for an incomplete character at the end.
    return bytes.isValidUtf8() ? QString() : QStringLiteral("the text ends inside a character");
}

} // namespace brinemark::plist
