// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "livestock/ProfileCollection.h"

#include <QDialog>
#include <QList>

class QAction;
class QActionGroup;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QTableView;
class QToolButton;

namespace brinemark
{

class FoundProfilesModel;

/// The controls of the profile search. Object names: "fishSearchPanel", and for each control the name of its member
/// here. The represented field of an item of the search-by menu is its data.
class FishSearchSheet : public QDialog
{
    Q_OBJECT

public:
    explicit FishSearchSheet(QWidget *parent);

    QLineEdit *const nameField;
    QPushButton *const searchButton;
    QTableView *const resultsList;
    QLabel *const progressLabel;
    QToolButton *const actionPopup;
    QPushButton *const helpButton;
    QPushButton *const cancelButton;
    QPushButton *const okButton;
    QActionGroup *const searchByItems; ///< without the header, in the order of the menu
    QAction *const searchOnlineItem;
    QAction *const searchImagesItem;

    void append(const SpeciesProfile &profile);
    void clear();
    /// The profile of the selected row; null when there is none. Valid until the list changes.
    [[nodiscard]] const SpeciesProfile *selectedProfile() const;

    [[nodiscard]] QSize sizeHint() const override; ///< so wide that every column is in sight

Q_SIGNALS:
    void selectionChanged();
    void searchRequested(); ///< by Return in the field, or the button beside it

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeSearchByMenu();
    void makeResults();
    void makeActionMenu();
    void goIntoResults();

    FoundProfilesModel *m_model;
};

} // namespace brinemark
