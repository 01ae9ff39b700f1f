// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/FishDataController.h"

#include "livestock/PictureScaling.h"
#include "livestock/ProfileFields.h"
#include "livestock/WebSearch.h"
#include "livestock/views/FishDataEntryController.h"
#include "livestock/views/PictureRefusal.h"
#include "livestock/views/PictureWell.h"
#include "livestock/views/ProfileView.h"
#include "model/Tank.h"
#include "model/pictures/PictureReader.h"
#include "ui/Desktop.h"
#include "ui/Shell.h"
#include "ui/pictures/PictureConverter.h"

namespace brinemark
{

FishDataController::FishDataController() = default;

FishDataController::~FishDataController() = default;

QWidget *FishDataController::view()
{
    if (!m_view) {
        m_view = new ProfileView;
        connectView();
        updateDisplay();
    }
    return m_view;
}

void FishDataController::connectView()
{
    connect(m_view, &ProfileView::segmentClicked, this, &FishDataController::qzRadioButtonAction);
    connect(m_view, &ProfileView::stepClicked, this, &FishDataController::qzRadioButtonNavigateAction);
    connect(m_view, &ProfileView::chooseClicked, this, &FishDataController::chooseImageAction);
    connect(m_view, &ProfileView::deleteClicked, this, &FishDataController::deleteItemImage);
    connect(m_view, &ProfileView::thumbnailClicked, this, [this](bool placeholder) {
        if (placeholder)
            searchForFishAction();
        else
            selectButtonAtIndex(ProfileView::PictureTag);
    });
    const PictureWell *well = m_view->pictureWell();
    connect(well, &PictureWell::pictureDropped, this, &FishDataController::dropImageAction);
    connect(well, &PictureWell::imageSearchRequested, this, &FishDataController::searchForFishAction);
    connect(well, &PictureWell::refused, this, [](PictureProblem problem, const QString &fileName) {
        beginPictureRefusal(Shell::shared().mainWindow(), problem, fileName);
    });
}

void FishDataController::setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton)
{
    view();
    m_view->setTabOrderBetween(tankTree, helpButton);
    updateDisplay();
}

void FishDataController::displayItemData(ItemData *item)
{
    if (m_view && item != currentItem())
        m_view->pictureWell()->finishReading(); // for the record that it was dropped on
    m_currentItem = item ? std::static_pointer_cast<ItemData>(item->shared_from_this()) : nullptr;
    updateDisplay();
}

void FishDataController::updateDisplay()
{
    if (!m_view)
        return;
    const ItemData *item = currentItem();
    m_view->showItem(item);
    m_view->profileField()->clearColumns();
    if (item) {
        fillText(*item);
        enableSteps();
    }
    m_view->profileField()->showColumns();
}

// ---- the profile's text

void FishDataController::fillText(const ItemData &item)
{
    addFirstColumnString(item.name, {}, ProfileStyle::Header, true);
    addFirstColumnString(item.sciName, {}, ProfileStyle::SubHeader, true);
    addFirstColumnString(item.family, {}, ProfileStyle::SubHeader, true);
    addFirstColumnString({}, {}, ProfileStyle::Normal, true);
    for (auto field = profileFields.begin(); field != profileFields.end(); ++field) {
        const QString value = profileText(item, *field);
        const QString label = text(field->captionKey).trimmed();
        const auto next = field + 1;
        const bool hasNeighbour = next != profileFields.end() && next->row == field->row;
        if (field->column == 0)
            addFirstColumnString(value, label, ProfileStyle::Normal, !hasNeighbour);
        else
            addSecondColumnString(value, label, ProfileStyle::Normal);
    }
    addFirstColumnString({}, {}, ProfileStyle::Normal, true);
    addFirstColumnString(text("FishDataNote").trimmed(), {}, ProfileStyle::Label, true);
    m_view->profileField()->addFirstColumn(item.notes, {}, ProfileStyle::Normal, false, true);
}

void FishDataController::addFirstColumnString(const QString &value, const QString &label, ProfileStyle style,
                                              bool newLine)
{
    view();
    m_view->profileField()->addFirstColumn(value, label, style, newLine, false);
}

void FishDataController::addSecondColumnString(const QString &value, const QString &label, ProfileStyle style)
{
    view();
    m_view->profileField()->addSecondColumn(value, label, style);
}

QTextCharFormat FishDataController::headerAttributes()
{
    view();
    return m_view->profileField()->attributes(ProfileStyle::Header);
}

QTextCharFormat FishDataController::subHeaderAttributes()
{
    view();
    return m_view->profileField()->attributes(ProfileStyle::SubHeader);
}

QTextCharFormat FishDataController::labelAttributes()
{
    view();
    return m_view->profileField()->attributes(ProfileStyle::Label);
}

QTextCharFormat FishDataController::normalAttributes()
{
    view();
    return m_view->profileField()->attributes(ProfileStyle::Normal);
}

QTextBlockFormat FishDataController::tabStopAttributes()
{
    view();
    return m_view->profileField()->tabStopAttributes();
}

// ---- the picture

void FishDataController::chooseImageAction()
{
    const std::weak_ptr<ItemData> asked = m_currentItem;
    choosePicture(Shell::shared().mainWindow(), [this, asked](const QString &path) {
        if (m_view && currentItem() && asked.lock().get() == currentItem())
            m_view->pictureWell()->takeFile(path);
    });
}

void FishDataController::dropImageAction(const ItemImage &image)
{
    ItemData *item = currentItem();
    if (!item)
        return;
    const ItemImage fitting = scaleImageToFit(image);
    if (fitting.isNone() && !image.isNone()) {
        beginPictureRefusal(Shell::shared().mainWindow(), PictureProblem::Damaged, {});
        return;
    }
    item->itemImage = fitting;
    PictureConverter::sharedInstance().convertLater(item->itemImage);
    if (m_view)
        m_view->showPicture(*item);
    Shell::shared().documentModifiedWithChange(true);
}

ItemImage FishDataController::scaleImageToFit(const ItemImage &image)
{
    const QSize size = readPictureHeader(image.encoded()).size;
    return size.isValid() && scaledToWell(size, pictureWell) == size ? image : imageForWell(image.encoded());
}

void FishDataController::deleteItemImage()
{
    const ItemData *item = currentItem();
    if (item && !item->itemImage.isNone())
        dropImageAction({});
}

void FishDataController::searchForFishAction()
{
    const ItemData *item = currentItem();
    if (!item)
        return;
    const auto searched = [](const QString &name) { return isUnspecified(name) ? QString() : name; };
    desktop::openUrlFrom(Shell::shared().mainWindow(),
                         speciesImageSearchUrl(searched(item->name), searched(item->sciName)));
}

// ---- the buttons

void FishDataController::editInfo()
{
    if (m_view)
        m_view->pictureWell()->finishReading(); // so that the editor shows it, and does not put the old one back
    if (ItemData *item = currentItem())
        FishDataEntryController::sharedInstance().displayItemData(item, item->itemContext());
}

void FishDataController::qzRadioButtonAction(int tag)
{
    if (tag == ProfileView::ProfileTag || tag == ProfileView::PictureTag)
        selectButtonAtIndex(tag);
    else
        editInfo();
}

void FishDataController::selectButtonAtIndex(int index)
{
    view();
    m_view->selectPage(index);
}

std::shared_ptr<ItemData> FishDataController::neighbour(int step) const
{
    const ItemData *item = currentItem();
    const std::optional<ContainerKind> kind = item ? containerKindOf(*item) : std::nullopt;
    if (!kind || !item->tank)
        return nullptr;
    const Container &group = *item->tank->container(*kind);
    const int index = group.indexOf(item);
    if (index < 0 || index + step < 0 || index + step >= group.count())
        return nullptr;
    return std::static_pointer_cast<ItemData>(group.recordAt(index + step));
}

void FishDataController::qzRadioButtonNavigateAction(int step)
{
    if (const std::shared_ptr<ItemData> next = neighbour(step))
        Shell::shared().selectInTree(*next);
}

void FishDataController::enableSteps()
{
    m_view->enableSteps(neighbour(-1) != nullptr, neighbour(1) != nullptr);
}

} // namespace brinemark

#include "moc_FishDataController.cpp"
