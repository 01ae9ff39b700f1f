// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/ItemSheet.h"

#include "base/text/NumberText.h"
#include "livestock/ProfileFields.h"
#include "livestock/views/PictureView.h"
#include "model/ItemData.h"
#include "model/KeyAccess.h"
#include "model/pictures/PictureReader.h"
#include "ui/Alerts.h"
#include "ui/CaptionForm.h"
#include "ui/HelpWindow.h"
#include "ui/MultiLineEdit.h"
#include "ui/SavePanel.h"
#include "ui/Spacing.h"
#include "ui/pictures/PictureConverter.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace brinemark
{

namespace
{

constexpr QSize sheetPictureSize(200, 150);
constexpr int smallestFieldWidth = 150; ///< pixels

struct NameField {
    QStringView key;
    TextKey captionKey;
};
constexpr auto nameFields = std::to_array<NameField>({
    {u"name", "FishDataName"_key},
    {u"sciName", "FishDataSciName"_key},
    {u"family", "FishDataFamily"_key},
});

/// Whether the field has no neighbour in its row, so that it can be as wide as the form.
constexpr bool standsAlone(const ProfileField &field)
{
    return std::none_of(profileFields.begin(), profileFields.end(), [&](const ProfileField &other) {
        return other.row == field.row && other.column != field.column;
    });
}

TextKey refusalText(PictureProblem problem)
{
    switch (problem) {
    case PictureProblem::NotReadable:
        return "PictureNotReadable"_key;
    case PictureProblem::TooLarge:
        return "PictureTooLarge"_key;
    case PictureProblem::Damaged:
        return "PictureDamaged"_key;
    case PictureProblem::NotAPicture:
    case PictureProblem::None:
        break;
    }
    return "PictureNotAPicture"_key;
}

constexpr std::array reefSafeCodes{reefsafe::yes, reefsafe::no, reefsafe::unknown};

} // namespace

ItemSheet::ItemSheet(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("itemSheet"));
    showHelpOnKey(this, QStringLiteral("livestock-profile"));
    auto *buttons = new QDialogButtonBox;
    QPushButton *okButton = buttons->addButton(text("OK"), QDialogButtonBox::AcceptRole);
    okButton->setObjectName(QStringLiteral("okButton"));
    okButton->setDefault(true);
    buttons->addButton(text("CancelLabel"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("cancelButton"));

    auto *content = new QHBoxLayout;
    content->setSpacing(spacing::content);
    content->addWidget(makeFields(), 1);
    content->addWidget(makePictureColumn(), 0, Qt::AlignTop);
    m_notes = new MultiLineEdit;
    m_notes->setObjectName(QStringLiteral("notes"));
    m_notes->setTabChangesFocus(true);
    m_notes->setMinimumHeight(72);
    auto *notes = new QVBoxLayout;
    notes->setSpacing(spacing::tight);
    QLabel *notesCaption = makeCaption(text("FishDataNote"));
    notesCaption->setBuddy(m_notes);
    notes->addWidget(notesCaption);
    notes->addWidget(m_notes);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(spacing::aroundContent);
    column->setSpacing(spacing::content);
    column->addLayout(content);
    column->addLayout(notes, 1);
    column->addWidget(buttons);

    connect(buttons, &QDialogButtonBox::accepted, this, &ItemSheet::acceptOnceDecoded);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void ItemSheet::addField(QGridLayout &grid, int row, int column, const QString &caption, const QString &key)
{
    auto *field = new QLineEdit;
    field->setObjectName(key);
    field->setMinimumWidth(smallestFieldWidth);
    addCaptioned(grid, row, column, caption, field);
    m_fields.insert(key, field);
}

QWidget *ItemSheet::makeFields()
{
    auto *fields = new QWidget;
    auto *grid = new QGridLayout(fields);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(spacing::group);
    grid->setVerticalSpacing(spacing::group);
    int row = 0;
    for (const NameField &field : nameFields) {
        addField(*grid, row, 0, text(field.captionKey), field.key.toString());
        grid->addWidget(m_fields.value(field.key.toString()), row++, 1, 1, 3);
    }
    for (const ProfileField &field : profileFields) {
        if (field.kind == ProfileKind::ReefSafe) {
            m_reefSafe = new QComboBox;
            m_reefSafe->setObjectName(field.key.toString());
            for (const qint32 code : reefSafeCodes)
                m_reefSafe->addItem(ItemData::reefSafeStringFromCode(code), code);
            addCaptioned(*grid, row + field.row, field.column, text(field.captionKey), m_reefSafe);
        } else {
            addField(*grid, row + field.row, field.column, text(field.captionKey), field.key.toString());
            if (standsAlone(field))
                grid->addWidget(m_fields.value(field.key.toString()), row + field.row, 1, 1, 3);
        }
    }
    return fields;
}

QWidget *ItemSheet::makePictureColumn()
{
    m_picture = new PictureView(sheetPictureSize);
    auto *chooseButton = new QPushButton(text("PictureChoose"));
    chooseButton->setObjectName(QStringLiteral("chooseImageButton"));
    m_deleteImageButton = new QPushButton(text("PictureRemove"));
    m_deleteImageButton->setObjectName(QStringLiteral("deleteImageButton"));
    for (QPushButton *button : {chooseButton, m_deleteImageButton})
        button->setAutoDefault(false); // so that Return presses OK, the default button
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(spacing::group);
    buttons->addWidget(chooseButton);
    buttons->addWidget(m_deleteImageButton);
    auto *pictureColumn = new QWidget;
    auto *column = new QVBoxLayout(pictureColumn);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing::group);
    column->addWidget(makeCaption(text("PictureLabel")));
    column->addWidget(m_picture);
    column->addLayout(buttons);
    connect(chooseButton, &QPushButton::clicked, this, &ItemSheet::chooseImageAction);
    connect(m_deleteImageButton, &QPushButton::clicked, this, [this] {
        m_chosenFile.clear();
        showPicture({});
    });
    connect(m_picture, &PictureView::decoded, this, [this](bool ok) {
        if (!ok && !m_chosenFile.isEmpty())
            refusePicture(PictureProblem::Damaged);
        m_chosenFile.clear();
    });
    return pictureColumn;
}

void ItemSheet::showItem(const ItemData &item)
{
    setWindowTitle(fillPlaceholders(text("EditItemTitle"), {item.name}));
    m_shown.clear();
    for (const NameField &field : nameFields)
        m_shown.insert(field.key.toString(), valueForKey(item, field.key).toString());
    for (const ProfileField &field : profileFields) {
        if (field.kind != ProfileKind::ReefSafe)
            m_shown.insert(field.key.toString(), profileText(item, field));
    }
    for (auto shown = m_shown.begin(); shown != m_shown.end(); ++shown) {
        QLineEdit *field = m_fields.value(shown.key());
        if (isUnspecified(*shown))
            shown->clear();
        field->setPlaceholderText(text("UnspecifiedHolder"));
        field->setText(*shown);
        field->setCursorPosition(0);
    }
    m_reefSafe->setCurrentIndex(m_reefSafe->findData(item.reefSafe));
    m_notes->setPlainText(item.notes);
    m_chosenFile.clear();
    showPicture(item.itemImage);
    QLineEdit *name = m_fields.value(QStringLiteral("name"));
    name->setFocus();
    name->selectAll();
}

void ItemSheet::storeInto(ItemData &item) const
{
    const auto changed = [this](const QString &key) { return m_fields.value(key)->text() != m_shown.value(key); };
    for (const NameField &field : nameFields) {
        const QString key = field.key.toString();
        if (changed(key))
            setValueForKey(item, field.key, compareUnspecified(m_fields.value(key)->text()));
    }
    for (const ProfileField &field : profileFields) {
        const QString key = field.key.toString();
        if (field.kind == ProfileKind::ReefSafe || !changed(key))
            continue;
        const QString typed = m_fields.value(key)->text();
        if (field.kind == ProfileKind::Text)
            setValueForKey(item, field.key, compareUnspecified(typed));
        else
            setValueForKey(item, field.key, typedNumber(typed));
    }
    if (m_reefSafe->currentIndex() >= 0)
        item.reefSafe = m_reefSafe->currentData().toInt();
    if (m_notes->toPlainText() != item.notes && m_notes->document()->isModified())
        item.notes = m_notes->toPlainText();
    item.itemImage = m_image;
}

void ItemSheet::chooseImageAction()
{
    const QString patterns = pictureFilePatterns().join(QLatin1Char(' '));
    auto *panel = new QFileDialog(this, {}, {}, text("PictureFilter") + QStringLiteral(" (%1)").arg(patterns));
    panel->setObjectName(QStringLiteral("imagePanel"));
    panel->setFileMode(QFileDialog::ExistingFile);
    arrangeFilePanel(*panel);
    openFilePanel(this, panel, [this](const QString &path) {
        if (!path.isEmpty())
            chooseImage(path);
    });
}

void ItemSheet::chooseImage(const QString &path)
{
    const PictureFile file = readPictureFile(path);
    m_chosenFile = QFileInfo(path).fileName();
    m_imageBefore = m_image;
    if (file.problem != PictureProblem::None) {
        refusePicture(file.problem);
        return;
    }
    const ItemImage chosen(file.bytes);
    PictureConverter::sharedInstance().convertLater(chosen);
    showPicture(chosen);
}

void ItemSheet::acceptOnceDecoded()
{
    const ItemImage chosen = m_image;
    PictureCache::sharedInstance().finishRequests();
    if (m_image == chosen) // it is another one when the chosen picture was refused just now
        accept();
}

void ItemSheet::showPicture(const ItemImage &picture)
{
    m_image = picture;
    m_picture->setPicture(picture);
    // Enabled also when the record holds bytes that are no readable picture.
    m_deleteImageButton->setEnabled(!picture.isNone());
}

void ItemSheet::refusePicture(PictureProblem problem)
{
    beep();
    const Alert alert{.title = fillPlaceholders(text("PictureRefusedTitle"), {std::exchange(m_chosenFile, {})}),
                      .message = text(refusalText(problem))};
    showPicture(m_imageBefore);
    beginAlertSheet(this, alert);
}

} // namespace brinemark

#include "moc_ItemSheet.cpp"
