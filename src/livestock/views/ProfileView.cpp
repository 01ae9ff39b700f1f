// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/ProfileView.h"

#include "base/text/Texts.h"
#include "livestock/views/CustomFishImageView.h"
#include "livestock/views/CustomThumbImageView.h"
#include "livestock/views/PictureWell.h"
#include "livestock/views/ProfileText.h"
#include "model/Tank.h"
#include "ui/IconButton.h"
#include "ui/Icons.h"
#include "ui/Spacing.h"
#include "ui/TitleLine.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>

#include <algorithm>

namespace brinemark
{

namespace
{

constexpr QSize thumbnailSize(160, 120); ///< in a window of the usual size, and the step in which it grows
constexpr int largestThumbnail = 3;      ///< in such steps
constexpr int widthPerStep = 640;        ///< of the view
constexpr int besideEachOther = 560;     ///< the least width for the small picture to stand beside the text

struct Segment {
    ProfileView::Tag tag;
    TextKey titleKey;
    TextKey toolTipKey;
    const char *objectName;
};
constexpr Segment profileSegments[] = {
    {ProfileView::ProfileTag, "ProfileViewTitle"_key, "ShowProfilePage"_key, "profileButton"},
    {ProfileView::PictureTag, "PicturePageTitle"_key, "ShowPicturePage"_key, "pictureButton"},
    {ProfileView::EditTag, "Edit..."_key, "EditItemToolTip"_key, "editButton"},
};

} // namespace

ProfileView::ProfileView(QWidget *parent)
    : QWidget(parent)
    , m_titleLine(new TitleLine)
    , m_pages(new QStackedWidget)
    , m_profileField(new ProfileText)
    , m_thumbnail(new CustomThumbImageView(thumbnailSize))
    , m_well(new PictureWell)
    , m_segments(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("fishDataView"));
    m_pages->setObjectName(QStringLiteral("tabView"));
    m_pages->addWidget(makeProfilePage());
    m_pages->addWidget(makePicturePage());

    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(spacing::aroundGroup);
    buttons->setSpacing(0);
    buttons->addWidget(makeSegments());
    buttons->addStretch();
    m_previous = makeStepButton("Back", text("PreviousItemToolTip"), QStringLiteral("previousButton"), -1);
    m_next = makeStepButton("Forward", text("NextItemToolTip"), QStringLiteral("nextButton"), 1);
    buttons->addWidget(m_previous);
    buttons->addWidget(m_next);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_titleLine);
    column->addWidget(m_pages, 1);
    column->addLayout(buttons);
    selectPage(ProfileTag);
    showItem(nullptr);
}

QWidget *ProfileView::makeProfilePage()
{
    auto *page = new QWidget;
    m_profileField->setObjectName(QStringLiteral("profileField"));
    m_profileField->setAccessibleName(text("ProfileViewTitle"));
    m_thumbnail->setObjectName(QStringLiteral("profileImageView"));
    m_thumbnail->setAccessibleName(text("PicturePageTitle"));
    m_profileLayout = new QBoxLayout(QBoxLayout::LeftToRight, page);
    m_profileLayout->setContentsMargins(spacing::content, spacing::tight, spacing::content, 0);
    m_profileLayout->setSpacing(spacing::content);
    m_profileLayout->addWidget(m_thumbnail, 0, Qt::AlignTop);
    m_profileLayout->addWidget(m_profileField, 1);
    connect(m_thumbnail, &CustomThumbImageView::clicked, this,
            [this] { Q_EMIT thumbnailClicked(m_thumbnail->showsPlaceholder()); });
    return page;
}

QWidget *ProfileView::makePicturePage()
{
    auto *page = new QWidget;
    m_chooseButton = new QPushButton(text("PictureChoose"));
    m_chooseButton->setObjectName(QStringLiteral("chooseImageButton"));
    m_deleteButton = new QPushButton(text("PictureRemove"));
    m_deleteButton->setObjectName(QStringLiteral("deleteImageButton"));
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(spacing::group);
    buttons->addWidget(m_chooseButton);
    buttons->addWidget(m_deleteButton);
    buttons->addStretch();
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(spacing::content, spacing::tight, spacing::content, 0);
    column->setSpacing(spacing::group);
    column->addWidget(m_well, 1);
    column->addLayout(buttons);
    connect(m_chooseButton, &QPushButton::clicked, this, &ProfileView::chooseClicked);
    connect(m_well, &PictureWell::chooseRequested, this, &ProfileView::chooseClicked);
    connect(m_deleteButton, &QPushButton::clicked, this, &ProfileView::deleteClicked);
    return page;
}

QWidget *ProfileView::makeSegments()
{
    auto *control = new QWidget;
    control->setObjectName(QStringLiteral("radioButtonView"));
    auto *row = new QHBoxLayout(control);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (const Segment &segment : profileSegments) {
        auto *button = new QPushButton(text(segment.titleKey));
        button->setObjectName(QLatin1String(segment.objectName));
        button->setToolTip(text(segment.toolTipKey));
        button->setCheckable(segment.tag != EditTag);
        if (segment.tag == EditTag)
            button->setIcon(icon("Edit"));
        row->addWidget(button);
        m_segments->addButton(button, segment.tag);
    }
    connect(m_segments, &QButtonGroup::idClicked, this, &ProfileView::segmentClicked);
    return control;
}

QToolButton *ProfileView::makeStepButton(const char *iconName, const QString &title, const QString &objectName,
                                         int step)
{
    QToolButton *button = makeIconButton(iconName, title, objectName);
    connect(button, &QToolButton::clicked, this, [this, step] { Q_EMIT stepClicked(step); });
    return button;
}

void ProfileView::showItem(const ItemData *item)
{
    const Container *group = nullptr;
    if (item && item->tank) {
        if (const std::optional<ContainerKind> kind = containerKindOf(*item))
            group = item->tank->container(*kind);
    }
    m_titleLine->setTitle(group ? group->name() : text("ProfileViewTitle"));
    m_titleLine->setSecondary(group ? item->tank->name : QString());
    m_pages->setVisible(item);
    for (QAbstractButton *button : m_segments->buttons())
        button->setEnabled(item);
    if (item)
        showPicture(*item);
    else
        enableSteps(false, false);
}

void ProfileView::showPicture(const ItemData &item)
{
    m_thumbnail->setPicture(item.itemImage);
    m_well->setPicture(item.itemImage);
    // While there is none, the well itself offers to choose one.
    m_chooseButton->setVisible(!item.itemImage.isNone());
    m_deleteButton->setVisible(!item.itemImage.isNone());
}

void ProfileView::selectPage(int tag)
{
    if (tag < 0 || tag >= m_pages->count())
        return;
    m_segments->button(tag)->setChecked(true);
    m_pages->setCurrentIndex(tag);
}

void ProfileView::enableSteps(bool previous, bool next)
{
    // A button that is disabled loses the focus, which then goes to its neighbour.
    if (m_previous->hasFocus() && !previous && next)
        m_next->setFocus();
    else if (m_next->hasFocus() && !next && previous)
        m_previous->setFocus();
    m_previous->setEnabled(previous);
    m_next->setEnabled(next);
}

void ProfileView::setTabOrderBetween(QWidget *before, QWidget *after)
{
    QWidget *last = before;
    const auto add = [&last](QWidget *next) {
        setTabOrder(last, next);
        last = next;
    };
    for (QWidget *next : std::initializer_list<QWidget *>{m_thumbnail, m_profileField, m_well->imageView(),
                                                          m_chooseButton, m_deleteButton})
        add(next);
    for (QAbstractButton *button : m_segments->buttons())
        add(button);
    for (QWidget *next : std::initializer_list<QWidget *>{m_previous, m_next, after})
        add(next);
}

void ProfileView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_thumbnail->setFixedSize(thumbnailSize * std::clamp(width() / widthPerStep, 1, largestThumbnail));
    m_profileLayout->setDirection(width() < besideEachOther ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

} // namespace brinemark

#include "moc_ProfileView.cpp"
