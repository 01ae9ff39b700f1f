// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/editor/ItemForm.h"

#include "base/text/NumberText.h"
#include "livestock/LivestockGroup.h"
#include "livestock/views/UnspecifiedPlaceholder.h"
#include "model/ItemData.h"
#include "model/KeyAccess.h"
#include "ui/CaptionForm.h"
#include "ui/CheckedLineEdit.h"
#include "ui/MultiLineEdit.h"
#include "ui/Spacing.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>
#include <limits>

namespace brinemark
{

namespace
{

constexpr int formPages = 2;
constexpr int smallestFieldWidth = 160; ///< pixels
constexpr int smallestNotesHeight = 72; ///< pixels
constexpr int roundToNearest = 1;
constexpr std::array reefSafeCodes{reefsafe::yes, reefsafe::no, reefsafe::unknown};
constexpr int reefSafeUnknownItem = 2;

/// Whether the field has no neighbour in its row, so that it can be as wide as the form.
constexpr bool isAlone(const ProfileField &field)
{
    return std::none_of(profileFields.begin(), profileFields.end(), [&](const ProfileField &other) {
        return other.cell.page == field.cell.page && other.cell.row == field.cell.row &&
               other.cell.column != field.cell.column;
    });
}

bool isNumber(const ProfileField &field)
{
    return field.kind == ProfileKind::Number || field.kind == ProfileKind::Count;
}

QLineEdit *makeLineEdit()
{
    auto *field = new QLineEdit;
    field->setMaxLength(std::numeric_limits<int>::max()); // the usual limit would cut a long text when it is stored
    field->setMinimumWidth(smallestFieldWidth);
    return field;
}

/// Shows a text in the combo box, also one that is not in its list.
void showText(QComboBox &combo, const QString &shown)
{
    combo.setCurrentIndex(combo.findText(shown, Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (combo.currentText() != shown)
        combo.setEditText(shown);
    combo.lineEdit()->setCursorPosition(0);
}

/// Selects the item that a record's text names. Older files hold the item's number instead. Any other text selects the
/// first item. False when this hides a text of its own.
bool selectStored(QComboBox &popup, const QString &stored)
{
    popup.setCurrentIndex(stored.size() == 1 ? leadingInteger(stored)
                                             : popup.findText(stored, Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (popup.currentIndex() >= 0)
        return true;
    popup.setCurrentIndex(0);
    return stored.size() < 2;
}

/// Selects the item whose number the text holds; the first one, and false, when there is no such item.
bool selectNumbered(QComboBox &popup, const QString &number)
{
    bool isIndex = false;
    const int index = number.toInt(&isIndex);
    const bool usable = isIndex && index >= 0 && index < popup.count();
    popup.setCurrentIndex(usable ? index : 0);
    return usable;
}

} // namespace

ItemForm::ItemForm()
    : m_notes(new MultiLineEdit)
{
    for (int page = 0; page < formPages; ++page)
        makePage(page);
}

void ItemForm::makePage(int page)
{
    auto *widget = new QWidget;
    auto *column = new QVBoxLayout(widget);
    column->setContentsMargins(spacing::aroundContent);
    column->setSpacing(spacing::section);
    auto *grid = new QGridLayout;
    column->addLayout(grid);
    grid->setHorizontalSpacing(spacing::group);
    grid->setVerticalSpacing(spacing::group);
    const auto add = [&](int row, int column, bool alone, TextKey caption, QStringView key, QWidget *control) {
        control->setObjectName(key.toString());
        addCaptioned(*grid, row, column, text(caption), control);
        if (alone)
            grid->addWidget(control, row, 1, 1, 3);
        m_controls.insert(key.toString(), control);
    };
    if (page == 0) {
        for (const ProfileName &name : profileNames)
            add(grid->rowCount(), 0, true, name.captionKey, name.key, makeLineEdit());
    }
    // In the order of the cells, since this becomes the order of the Tab key.
    std::vector<ProfileField> fields(profileFields.begin(), profileFields.end());
    std::erase_if(fields, [&](const ProfileField &field) { return field.cell.page != page; });
    std::sort(fields.begin(), fields.end(), [](const ProfileField &a, const ProfileField &b) {
        return std::pair(a.cell.row, a.cell.column) < std::pair(b.cell.row, b.cell.column);
    });
    const int firstRow = grid->rowCount();
    for (const ProfileField &field : fields)
        add(firstRow + field.cell.row, field.cell.column, isAlone(field), field.captionKey, field.key,
            makeControl(field));

    if (page == 0) {
        m_notes->setObjectName(QStringLiteral("notes"));
        m_notes->setTabChangesFocus(true);
        m_notes->setMinimumHeight(smallestNotesHeight);
        QLabel *caption = makeCaption(text("FishDataNote"));
        caption->setBuddy(m_notes);
        auto *notes = new QVBoxLayout;
        notes->setSpacing(spacing::tight);
        notes->addWidget(caption);
        notes->addWidget(m_notes, 1);
        column->addLayout(notes, 1);
    } else {
        column->addStretch(1);
    }
    m_pages << widget;
}

QWidget *ItemForm::makeControl(const ProfileField &field)
{
    switch (field.kind) {
    case ProfileKind::Number:
    case ProfileKind::Count: {
        auto *number =
            new CheckedLineEdit(SFCheckedFormatter(0, field.range.most, field.range.decimals, roundToNearest));
        number->setMinimumWidth(smallestFieldWidth);
        return number;
    }
    case ProfileKind::Text:
        return makeLineEdit();
    case ProfileKind::TankLevel:
    case ProfileKind::Breeding:
    case ProfileKind::Care:
    case ProfileKind::ReefSafe:
        break;
    }
    auto *popup = new QComboBox;
    if (field.kind == ProfileKind::TankLevel) {
        popup->setEditable(true);
        popup->setInsertPolicy(QComboBox::NoInsert);
        popup->setCompleter(nullptr); // it would replace what is typed by an item that begins alike
        popup->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
        popup->addItems(textItems("TankLevelMenu"_key));
    } else if (field.kind == ProfileKind::Care) {
        popup->addItems(textItems("CareMenu"_key));
    } else if (field.kind == ProfileKind::ReefSafe) {
        for (const qint32 code : reefSafeCodes)
            popup->addItem(ItemData::reefSafeStringFromCode(code), code);
    }
    QObject::connect(popup, &QComboBox::activated, popup, [this, key = field.key.toString()] { m_unlisted.remove(key); });
    return popup;
}

QLineEdit &ItemForm::lineEdit(QStringView key) const
{
    return static_cast<QLineEdit &>(*m_controls.value(key.toString()));
}

CheckedLineEdit &ItemForm::numberEdit(const ProfileField &field) const
{
    return static_cast<CheckedLineEdit &>(*m_controls.value(field.key.toString()));
}

QComboBox &ItemForm::popup(const ProfileField &field) const
{
    return static_cast<QComboBox &>(*m_controls.value(field.key.toString()));
}

void ItemForm::setWithContext(const LivestockGroupTraits &kind)
{
    for (const ProfileField &field : profileFields) {
        if (field.kind == ProfileKind::Breeding) {
            popup(field).clear();
            popup(field).addItems(textItems(kind.breedingMenuKey));
        }
    }
    nameField().setText(text(kind.defaultNameKey));
}

void ItemForm::showNumber(const ProfileField &field, double value)
{
    constexpr int significantDigits = 7; // of a float
    m_numbers.insert(field.key.toString(), value);
    numberEdit(field).setText(shownNumber(value, significantDigits));
    numberEdit(field).setCursorPosition(0);
}

void ItemForm::showNotes(const QString &notes)
{
    m_shownNotes = notes;
    m_notes->setPlainText(notes);
}

void ItemForm::showItem(const ItemData &item)
{
    m_unlisted.clear();
    for (const ProfileName &name : profileNames)
        setUnspecifiedPlaceholder(lineEdit(name.key), valueForKey(item, name.key).toString());
    for (const ProfileField &field : profileFields) {
        const QVariant value = valueForKey(item, field.key);
        switch (field.kind) {
        case ProfileKind::Text:
            setUnspecifiedPlaceholder(lineEdit(field.key), value.toString());
            break;
        case ProfileKind::TankLevel:
            showText(popup(field), value.toString());
            break;
        case ProfileKind::Breeding:
        case ProfileKind::Care:
            if (!selectStored(popup(field), value.toString()))
                m_unlisted.insert(field.key.toString(), value.toString());
            break;
        case ProfileKind::Number:
        case ProfileKind::Count:
            showNumber(field, value.toDouble());
            break;
        case ProfileKind::ReefSafe:
            popup(field).setCurrentIndex(popup(field).findData(value));
            break;
        }
    }
    showNotes(item.notes);
}

void ItemForm::showNewItem()
{
    m_unlisted.clear();
    const auto empty = [this](QStringView key) {
        lineEdit(key).clear();
        lineEdit(key).setPlaceholderText({});
    };
    for (const ProfileName &name : profileNames) {
        if (name.key != u"name")
            empty(name.key);
    }
    nameField().setPlaceholderText({});
    for (const ProfileField &field : profileFields) {
        if (field.kind == ProfileKind::Text)
            empty(field.key);
        else if (isNumber(field))
            showNumber(field, field.kind == ProfileKind::Count ? 1 : 0);
        else
            popup(field).setCurrentIndex(field.kind == ProfileKind::ReefSafe ? reefSafeUnknownItem : 0);
    }
    showNotes({});
}

bool ItemForm::showProfile(const SpeciesProfile &profile)
{
    m_unlisted.clear();
    bool usable = true;
    for (const ProfileName &name : profileNames)
        lineEdit(name.key).setText(profileValue(profile, name.profileKey));
    for (const ProfileField &field : profileFields) {
        const QString value = profileValue(profile, field.profileKey);
        switch (field.kind) {
        case ProfileKind::Text:
            setUnspecifiedPlaceholder(lineEdit(field.key), value);
            break;
        case ProfileKind::Number:
            showNumber(field, profileNumber(value));
            // What a profile leaves out is shown as unspecified, except the salinity: fresh water has none.
            if (field.key != u"salt" && (value.isEmpty() || isUnspecified(value))) {
                numberEdit(field).setText({});
                numberEdit(field).setPlaceholderText(text("UnspecifiedHolder"));
            }
            break;
        case ProfileKind::TankLevel:
        case ProfileKind::Breeding:
        case ProfileKind::Care:
            usable &= selectNumbered(popup(field), value);
            break;
        case ProfileKind::ReefSafe:
            if (profile.contains(field.profileKey))
                usable &= selectNumbered(popup(field), value);
            else
                popup(field).setCurrentIndex(reefSafeUnknownItem);
            break;
        case ProfileKind::Count:
            break;
        }
    }
    showNotes({});
    return usable;
}

void ItemForm::storeInto(ItemData &item) const
{
    for (const ProfileName &name : profileNames)
        setValueForKey(item, name.key, compareUnspecified(lineEdit(name.key).text()));
    for (const ProfileField &field : profileFields) {
        const QString key = field.key.toString();
        if (field.kind == ProfileKind::ReefSafe) {
            if (popup(field).currentIndex() >= 0) // a code without an item stays as it is
                item.reefSafe = popup(field).currentData().toInt();
        } else if (isNumber(field)) {
            const CheckedLineEdit &number = numberEdit(field);
            setValueForKey(item, field.key, number.hasEdit() ? number.value() : m_numbers.value(key));
        } else if (field.kind == ProfileKind::Breeding || field.kind == ProfileKind::Care) {
            setValueForKey(item, field.key, m_unlisted.value(key, popup(field).currentText()));
        } else {
            setValueForKey(item, field.key, compareUnspecified(shownText(field.key)));
        }
    }
    item.notes = m_notes->document()->isModified() ? m_notes->toPlainText() : m_shownNotes;
}

QString ItemForm::shownText(QStringView key) const
{
    const QWidget *control = m_controls.value(key.toString());
    const auto *combo = qobject_cast<const QComboBox *>(control);
    return combo ? combo->currentText() : static_cast<const QLineEdit *>(control)->text();
}

} // namespace brinemark
