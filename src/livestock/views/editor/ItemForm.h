// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "livestock/ProfileCollection.h"
#include "livestock/ProfileFields.h"

#include <QHash>
#include <QList>

class QComboBox;
class QLineEdit;
class QWidget;

namespace brinemark
{

class CheckedLineEdit;
class MultiLineEdit;
struct ItemData;
struct LivestockGroupTraits;

/// The fields of the item editor, on two pages: names, basics and notes; water and needs. The object name of a control
/// is the key of the record's field ("sciName" ...).
class ItemForm
{
public:
    /// Makes the pages; whoever shows them owns them. The form must not be used once they are destroyed.
    ItemForm();

    [[nodiscard]] const QList<QWidget *> &pages() const { return m_pages; }
    [[nodiscard]] QLineEdit &nameField() const { return lineEdit(u"name"); }

    /// The default name and the breeding difficulties of a kind.
    void setWithContext(const LivestockGroupTraits &kind);
    void showItem(const ItemData &item);
    void showNewItem(); ///< keeps the name
    /// Keeps the count, and empties the notes. False when one of the indexes in the profile is no item of its menu:
    /// that menu then shows its first item, and everything else is filled.
    [[nodiscard]] bool showProfile(const SpeciesProfile &profile);
    /// Stores every field. A number that nobody has touched keeps its exact value, and a breeding or care text that is
    /// in no menu of this language stays until an item is chosen.
    void storeInto(ItemData &item) const;

    /// The text that stands in a field.
    [[nodiscard]] QString shownText(QStringView key) const;

private:
    void makePage(int page);
    [[nodiscard]] QWidget *makeControl(const ProfileField &field);
    void showNotes(const QString &notes);
    void showNumber(const ProfileField &field, double value);
    [[nodiscard]] QLineEdit &lineEdit(QStringView key) const;
    [[nodiscard]] CheckedLineEdit &numberEdit(const ProfileField &field) const;
    [[nodiscard]] QComboBox &popup(const ProfileField &field) const;

    QList<QWidget *> m_pages;
    QHash<QString, QWidget *> m_controls; ///< by the key of the record's field
    QHash<QString, double> m_numbers;     ///< the exact numbers that are shown, by key
    QHash<QString, QString> m_unlisted;   ///< the stored texts for which the first item stands, by key
    QString m_shownNotes;                 ///< with the line ends of the record
    MultiLineEdit *m_notes;
};

} // namespace brinemark
