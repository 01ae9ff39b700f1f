// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/TankFile.h"
#include "model/TankFileKeys.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace brinemark
{

namespace
{

/// Enough for declaration, document type, a comment or two and the first key.
constexpr qint64 examinedBytes = 16 * 1024;

/// Any tank may come first, because not every writer sorts the keys.
bool isTankKey(const QString &key)
{
    const int position = key.toInt();
    return position > 0 && key == tankfile::tankKey(position);
}

} // namespace

bool looksLikeTankFile(const QString &path)
{
    const QFileInfo info(path);
    QFile file(path);
    if (info.suffix().compare(QLatin1String("xml"), Qt::CaseInsensitive) != 0 || !info.isFile() ||
        !file.open(QIODevice::ReadOnly))
        return false;
    QXmlStreamReader xml(file.read(examinedBytes));
    if (!xml.readNextStartElement() || xml.name() != u"plist" || !xml.readNextStartElement() || xml.name() != u"dict")
        return false;
    if (!xml.readNextStartElement() || xml.name() != u"key")
        return false;
    const QString firstKey = xml.readElementText();
    return firstKey == tankfile::fileAttributesKey || isTankKey(firstKey);
}

} // namespace brinemark
