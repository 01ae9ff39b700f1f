// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ItemData.h"

#include "base/text/Texts.h"
#include "model/LivestockData.h"
#include "model/RecordCopy.h"

#include <QStringList>

namespace brinemark
{

ItemData::ItemData()
    : ItemData(static_cast<Tank *>(nullptr))
{
}

ItemData::ItemData(Tank *parent)
    : ItemData(text("NewFishName"_key), parent)
{
}

ItemData::ItemData(const QString &itemName, Tank *parent)
    : Record(parent)
    , name(itemName)
{
    const QString unspecified = text("Unspecified"_key);
    for (QString ItemData::*field :
         {&ItemData::temp, &ItemData::sciName, &ItemData::family, &ItemData::size, &ItemData::socialLevel,
          &ItemData::lifeSpan, &ItemData::tankLevel, &ItemData::diet, &ItemData::breeding, &ItemData::care})
        this->*field = unspecified;
}

void ItemData::setItemImageWithData(const QByteArray &imageData)
{
    itemImage = ItemImage(imageData);
}

QString ItemData::reefSafeStringFromCode(qint32 code)
{
    const QStringList words = textItems("ReefSafeMenu"_key);
    return words.value(code == reefsafe::yes ? 0 : code == reefsafe::no ? 1 : 2);
}

std::shared_ptr<Record> ItemData::copy() const
{
    const std::shared_ptr<ItemData> result = makeItemData(itemContext(), nullptr);
    copyFields(*this, *result);
    return result;
}

std::shared_ptr<ItemData> makeItemData(ItemContext context, Tank *parent)
{
    switch (context) {
    case ItemContext::Fish:
        return std::make_shared<FishData>(parent);
    case ItemContext::Plant:
        return std::make_shared<PlantData>(parent);
    case ItemContext::Coral:
        return std::make_shared<CoralData>(parent);
    case ItemContext::Invert:
        return std::make_shared<InvertData>(parent);
    case ItemContext::None:
        break;
    }
    return std::make_shared<ItemData>(parent);
}

} // namespace brinemark
