// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QBoxLayout;
class QButtonGroup;
class QPushButton;
class QStackedWidget;
class QToolButton;

namespace brinemark
{

class CustomThumbImageView;
class PictureWell;
class ProfileText;
class TitleLine;
struct ItemData;

/// The view of a livestock record: a page with its profile and a small picture, and a page with the picture alone.
/// Object names: "fishDataView", "profileField", "profileImageView", "tabView", "radioButtonView" with "profileButton",
/// "pictureButton" and "editButton", "previousButton", "nextButton", "chooseImageButton", "deleteImageButton", and
/// those of PictureWell.
class ProfileView : public QWidget
{
    Q_OBJECT

public:
    explicit ProfileView(QWidget *parent = nullptr);

    enum Tag { ProfileTag, PictureTag, EditTag }; ///< of the segments, which are also the indexes of the pages

    /// All but the profile's text; null shows an empty page.
    void showItem(const ItemData *item);
    void showPicture(const ItemData &item);
    void selectPage(int tag);
    void enableSteps(bool previous, bool next);
    /// Links the tab order between the two widgets.
    void setTabOrderBetween(QWidget *before, QWidget *after);

    [[nodiscard]] ProfileText *profileField() const { return m_profileField; }
    [[nodiscard]] PictureWell *pictureWell() const { return m_well; }

Q_SIGNALS:
    void segmentClicked(int tag);
    void stepClicked(int step); ///< -1 for the previous record, 1 for the next
    void thumbnailClicked(bool placeholder);
    void chooseClicked();
    void deleteClicked();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeProfilePage();
    QWidget *makePicturePage();
    QWidget *makeSegments();
    QToolButton *makeStepButton(const char *iconName, const QString &title, const QString &objectName, int step);

    TitleLine *m_titleLine;
    QStackedWidget *m_pages;
    QBoxLayout *m_profileLayout = nullptr;
    ProfileText *m_profileField;
    CustomThumbImageView *m_thumbnail;
    PictureWell *m_well;
    QPushButton *m_chooseButton = nullptr;
    QPushButton *m_deleteButton = nullptr;
    QButtonGroup *m_segments;
    QToolButton *m_previous = nullptr;
    QToolButton *m_next = nullptr;
};

} // namespace brinemark
