// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "livestock/views/editor/ItemForm.h"

#include <QDialog>

class QPushButton;
class QTabWidget;

namespace brinemark
{

class ItemImage;
class PictureWell;

/// The sheet of the item editor: the two pages of the form, and one with the picture. Object names: "itemSheet", the
/// fields as in ItemForm, and for each other control the name of its member here.
class ItemSheet : public QDialog
{
    Q_OBJECT

public:
    explicit ItemSheet(QWidget *parent);

    /// How the sheet ends. Escape and the window's close button cancel.
    enum ReturnCode { Saved = 1, Cancelled = 2, Searching = 3 };

    ItemForm form;
    QTabWidget *const tabView;
    PictureWell *const fishImageView;
    QPushButton *const chooseImageButton;
    QPushButton *const deleteImageButton; ///< enabled while there is a picture
    QPushButton *const helpButton;
    QPushButton *const submitButton;
    QPushButton *const searchButton;
    QPushButton *const cancelButton;
    QPushButton *const saveButton;

    void showPicture(const ItemImage &picture);
    void showFirstPage(); ///< with the name selected for typing

    void reject() override;

private:
    QWidget *makePicturePage();
};

} // namespace brinemark
