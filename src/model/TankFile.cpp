// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/TankFile.h"

#include "base/plist/XmlReader.h"
#include "base/plist/XmlWriter.h"
#include "model/Tank.h"
#include "model/TankFileKeys.h"
#include "model/pictures/PngConversion.h"

namespace brinemark
{

TankFileContent readTankDictionary(const QString &path)
{
    FileContent file = readFile(path);
    if (!file.ok)
        return {false, file.error, {}, {}};
    plist::ReadResult read = plist::readXml(std::move(file.bytes));
    if (!read)
        return {false, read.error, {}, {}};
    const plist::Dict *root = read.value.dict();
    if (!root)
        return {false, QStringLiteral("the property list is no dictionary"), {}, {}};
    return {true, {}, *root, file.stamp};
}

plist::Dict tankFileDictionary(const TankList &tanks, int selectedRow, qint64 bundleVersion)
{
    convertPicturesNow(tanks);
    plist::Dict root;
    QString metaNotes;
    plist::Array metaKeywords;
    int position = 0;
    for (const std::shared_ptr<Tank> &tank : tanks) {
        root.insert(tankfile::tankKey(++position), tank->tankDictionary());
        metaNotes += tank->metaTankString();
        for (const QString &word : tank->metaTankArray())
            metaKeywords.emplace_back(word);
    }
    root.insert(tankfile::fileAttributesKey, plist::Dict{{tankfile::selectedRowKey, selectedRow},
                                                         {tankfile::bundleVersionKey, bundleVersion},
                                                         {tankfile::metaNotesKey, metaNotes},
                                                         {tankfile::metaKeywordsKey, std::move(metaKeywords)}});
    return root;
}

WriteResult writeTankDictionary(const QString &path, const plist::Dict &root)
{
    return writeFileSafely(path, plist::writeXml(root));
}

} // namespace brinemark
