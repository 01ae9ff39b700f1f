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

/// Enough for declaration, document type, a comment or two and the first keys.
constexpr qint64 examinedBytes = 16 * 1024;

/// Any tank may come first, because not every writer sorts the keys.
bool isTankKey(const QString &key)
{
    const int position = key.toInt();
    return position > 0 && key == tankfile::tankKey(position);
}

/// Reads the entries of the root dictionary up to the first tank, which is a dictionary or, in the older form, an
/// array. The attributes may stand before it, or alone in the file.
bool holdsTanks(QXmlStreamReader &xml)
{
    bool hasAttributes = false;
    while (xml.readNextStartElement()) {
        const QString key = xml.name() == u"key" ? xml.readElementText() : QString();
        const bool isTank = isTankKey(key);
        if ((!isTank && key != tankfile::fileAttributesKey) || !xml.readNextStartElement())
            return false;
        const bool isDict = xml.name() == u"dict";
        if (isTank || !isDict)
            return isTank && (isDict || xml.name() == u"array");
        hasAttributes = true;
        xml.skipCurrentElement();
    }
    return hasAttributes; // the first tank, if there is one, lies beyond the examined bytes
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
    return xml.readNextStartElement() && xml.name() == u"plist" && xml.readNextStartElement() &&
           xml.name() == u"dict" && holdsTanks(xml);
}

} // namespace brinemark
