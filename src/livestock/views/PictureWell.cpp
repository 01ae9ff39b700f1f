// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/PictureWell.h"

#include "base/text/Texts.h"
#include "livestock/views/CustomFishImageView.h"
#include "livestock/views/PictureDrop.h"
#include "livestock/views/PictureIntake.h"
#include "ui/Colours.h"
#include "ui/Icons.h"
#include "ui/Spacing.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QPushButton>

namespace brinemark
{

PictureWell::PictureWell(QWidget *parent)
    : QWidget(parent)
    , m_image(new CustomFishImageView)
    , m_searchView(makeSearchView())
    , m_intake(new PictureIntake(this))
{
    m_image->setObjectName(QStringLiteral("fishImageView"));
    m_image->setAccessibleName(text("PictureLabel").trimmed());
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(m_image);
    auto *inside = new QVBoxLayout(m_image->viewport());
    inside->addWidget(m_searchView);

    connect(m_image, &CustomFishImageView::pictureOffered, this, &PictureWell::takeDropped);
    connect(m_intake, &PictureIntake::taken, this, [this](const ItemImage &picture) {
        showReading();
        Q_EMIT pictureDropped(picture);
    });
    connect(m_intake, &PictureIntake::refused, this, [this](PictureProblem problem, const QString &fileName) {
        showReading();
        Q_EMIT refused(problem, fileName);
    });
    applyLook();
}

QWidget *PictureWell::makeSearchView()
{
    auto *view = new QWidget;
    view->setObjectName(QStringLiteral("fishSearchView"));
    m_placeholder = new QLabel;
    m_hint = new QLabel(text("DropImageHint"));
    m_hint->setObjectName(QStringLiteral("dropImageTextField"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignCenter);
    auto *chooseButton = new QPushButton(icon("Open"), text("PictureChoose"));
    chooseButton->setObjectName(QStringLiteral("chooseInWellButton"));
    auto *searchButton = new QPushButton(icon("Web"), text("SearchImagesOnline"));
    searchButton->setObjectName(QStringLiteral("imageSearchButton"));
    for (QPushButton *button : {chooseButton, searchButton})
        button->setAutoDefault(false); // in a sheet, Return presses the sheet's default button
    auto *column = new QVBoxLayout(view);
    column->setContentsMargins(spacing::aroundGroup);
    column->setSpacing(spacing::group);
    column->addStretch(2);
    column->addWidget(m_placeholder, 0, Qt::AlignHCenter);
    column->addWidget(m_hint);
    column->addSpacing(spacing::tight);
    column->addWidget(chooseButton, 0, Qt::AlignHCenter);
    column->addWidget(searchButton, 0, Qt::AlignHCenter);
    column->addStretch(3);
    connect(chooseButton, &QPushButton::clicked, this, &PictureWell::chooseRequested);
    connect(searchButton, &QPushButton::clicked, this, &PictureWell::imageSearchRequested);
    return view;
}

void PictureWell::setPicture(const ItemImage &picture)
{
    m_image->setPicture(picture);
    m_searchView->setVisible(picture.isNone());
}

const ItemImage &PictureWell::picture() const
{
    return m_image->picture();
}

void PictureWell::takeFile(const QString &path)
{
    m_intake->readFile(path);
    showReading();
}

void PictureWell::takeDropped(const QMimeData &data)
{
    const DroppedPicture dropped = droppedPicture(data);
    if (!dropped.path.isEmpty())
        m_intake->readFile(dropped.path);
    else
        m_intake->readBytes(dropped.bytes);
    showReading();
}

void PictureWell::finishReading()
{
    m_intake->finish();
}

void PictureWell::showReading()
{
    if (m_intake->isReading())
        setCursor(Qt::BusyCursor);
    else
        unsetCursor();
}

void PictureWell::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyLook();
}

void PictureWell::applyLook()
{
    constexpr int side = 96;
    // Drawn again here, since icons follow the palette.
    m_placeholder->setPixmap(icon("Profileplaceholder3").pixmap(QSize(side, side), devicePixelRatioF()));
    m_hint->setPalette(quietPalette(palette()));
}

} // namespace brinemark

#include "moc_PictureWell.cpp"
