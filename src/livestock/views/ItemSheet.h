// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ItemImage.h"

#include <QDialog>
#include <QHash>

class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;

namespace brinemark
{

class MultiLineEdit;
class PictureView;
enum class PictureProblem;
struct ItemData;

/// The form for editing a livestock record. Object names: "itemSheet", each field by its key ("sciName" ...),
/// "chooseImageButton", "deleteImageButton", "okButton", "cancelButton".
class ItemSheet : public QDialog
{
    Q_OBJECT

public:
    explicit ItemSheet(QWidget *parent);

    void showItem(const ItemData &item);
    /// Stores the changed fields; fields that the user did not change keep their exact value.
    void storeInto(ItemData &item) const;

    /// Shows the picture and converts it in the background. A file that is no picture leaves the old one, with an alert
    /// that says why; so does a damaged one once this is known.
    void chooseImage(const QString &path);

private:
    QWidget *makeFields();
    QWidget *makePictureColumn();
    void addField(QGridLayout &grid, int row, int column, const QString &caption, const QString &key);
    void chooseImageAction();
    void showPicture(const ItemImage &picture);
    void refusePicture(PictureProblem problem);
    void acceptOnceDecoded();

    QHash<QString, QLineEdit *> m_fields;
    QHash<QString, QString> m_shown; ///< the initial texts of the fields, by key
    QComboBox *m_reefSafe = nullptr;
    MultiLineEdit *m_notes = nullptr;
    PictureView *m_picture = nullptr;
    QPushButton *m_deleteImageButton = nullptr;
    ItemImage m_image;       ///< the record's own, unless another one was chosen
    ItemImage m_imageBefore; ///< shown before the one that was chosen last
    QString m_chosenFile;    ///< its name, until the picture is decoded
};

} // namespace brinemark
