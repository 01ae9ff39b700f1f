// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ItemImage.h"

#include <QWidget>

class QLabel;
class QMimeData;

namespace brinemark
{

class CustomFishImageView;
class PictureIntake;
enum class PictureProblem;

/// Shows a record's picture and takes another one that is dropped on it or read from a file. While it is empty, it says
/// so and offers to choose a picture or to look for one on the web. It does not keep what it takes: its owner stores
/// the picture and sets it. Object names: "fishImageView", "fishSearchView", "dropImageTextField",
/// "chooseInWellButton", "imageSearchButton".
class PictureWell : public QWidget
{
    Q_OBJECT

public:
    explicit PictureWell(QWidget *parent = nullptr);

    void setPicture(const ItemImage &picture);
    [[nodiscard]] const ItemImage &picture() const;
    [[nodiscard]] CustomFishImageView *imageView() const { return m_image; }

    /// Reads the file in the background, as one that was dropped.
    void takeFile(const QString &path);
    /// Waits until what was dropped or chosen has been taken or refused. To be called before another record is shown
    /// and before the picture is stored, so that no picture is lost or comes to another record.
    void finishReading();

Q_SIGNALS:
    void pictureDropped(const brinemark::ItemImage &picture); ///< already read, checked and shrunk
    /// The file's name is empty for data that was dropped without one. See PictureRefusal.h.
    void refused(brinemark::PictureProblem problem, const QString &fileName);
    void imageSearchRequested();
    void chooseRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    QWidget *makeSearchView();
    void takeDropped(const QMimeData &data);
    void showReading();
    void applyLook();

    CustomFishImageView *m_image;
    QLabel *m_placeholder = nullptr;
    QLabel *m_hint = nullptr;
    QWidget *m_searchView;
    PictureIntake *m_intake;
};

} // namespace brinemark
