// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ItemContext.h"
#include "model/ItemImage.h"
#include "model/Record.h"
#include "model/ReefSafe.h"

#include <QString>

namespace brinemark
{

class StyledText;

/// A livestock or plant entry with its species profile. The kinds (FishData and its siblings) differ in `itemContext`
/// only.
struct ItemData : Record {
    float ph = 0;
    float KH = 0;
    QString temp; ///< a temperature range as free text
    float gHardness = 0;
    QString sciName;
    QString name;
    QString family;
    QString size;
    QString socialLevel;
    QString lifeSpan;
    QString tankLevel;
    QString diet;
    QString breeding;
    QString care;
    QString notes;
    float salt = 0; ///< salinity
    qint32 count = 1;
    qint32 reefSafe = reefsafe::unknown; ///< one of the codes of ReefSafe.h
    ItemImage itemImage;

    ItemData();
    explicit ItemData(Tank *parent);
    ItemData(const QString &name, Tank *parent);
    explicit ItemData(Blank) {}

    [[nodiscard]] virtual ItemContext itemContext() const { return ItemContext::None; }

    /// Empty data gives no image. For the editor of profiles; the views only show pictures.
    void setItemImageWithData(const QByteArray &imageData);

    /// The display text of a code: an element of the text "ReefSafeMenu" (yes, no, unknown); any other code gives
    /// unknown.
    [[nodiscard]] static QString reefSafeStringFromCode(qint32 code);

    [[nodiscard]] StyledText itemDataAttributedString() const; ///< captions and values, for printing

    [[nodiscard]] RecordType recordType() const override { return RecordType::Item; }
    /// Copies all but `reefSafe`, which is unknown in the copy.
    [[nodiscard]] std::shared_ptr<Record> copy() const override;
};

} // namespace brinemark
