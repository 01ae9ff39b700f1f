// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>
#include <QHash>
#include <QImage>

class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;

namespace brinemark
{

class MultiLineEdit;
class PictureView;
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

    void chooseImage(const QString &path); ///< beeps when the file is not a readable picture

private:
    QWidget *makeFields();
    QWidget *makePictureColumn();
    void addField(QGridLayout &grid, int row, int column, const QString &caption, const QString &key);
    void chooseImageAction();
    void showImage(const QImage &image);

    QHash<QString, QLineEdit *> m_fields;
    QHash<QString, QString> m_shown; ///< the initial texts of the fields, by key
    QComboBox *m_reefSafe = nullptr;
    MultiLineEdit *m_notes = nullptr;
    PictureView *m_picture = nullptr;
    QPushButton *m_deleteImageButton = nullptr;
    QImage m_image;
    bool m_imageChanged = false;
};

} // namespace brinemark
