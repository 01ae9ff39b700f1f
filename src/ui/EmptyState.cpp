// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/EmptyState.h"

#include "ui/Colours.h"
#include "ui/Spacing.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace brinemark
{

namespace
{

constexpr int readableWidth = 360; // pixels

} // namespace

EmptyState::EmptyState(const QIcon &picture, const QString &sentence, const QString &buttonText, QWidget *parent)
    : QWidget(parent)
    , m_picture(new QLabel(this))
    , m_sentence(new QLabel(sentence, this))
    , m_button(new QPushButton(this))
{
    m_sentence->setObjectName(QStringLiteral("emptyStateSentence"));
    m_sentence->setTextFormat(Qt::PlainText);
    m_sentence->setWordWrap(true);
    m_sentence->setAlignment(Qt::AlignCenter);
    m_sentence->setFixedWidth(readableWidth);
    m_button->setObjectName(QStringLiteral("emptyStateButton"));
    connect(m_button, &QPushButton::clicked, this, &EmptyState::addRequested);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(spacing::aroundContent);
    column->setSpacing(spacing::section);
    column->addStretch(2);
    column->addWidget(m_picture, 0, Qt::AlignHCenter);
    column->addWidget(m_sentence, 0, Qt::AlignHCenter);
    column->addWidget(m_button, 0, Qt::AlignHCenter);
    column->addStretch(3); // content a little above the centre looks centred
    setPicture(picture);
    setButtonText(buttonText);
    fitSentence();
}

QString EmptyState::sentence() const
{
    return m_sentence->text();
}

void EmptyState::setPicture(const QIcon &picture)
{
    m_icon = picture;
    m_picture->setVisible(!picture.isNull());
    applyLook();
}

void EmptyState::setSentence(const QString &sentence)
{
    m_sentence->setText(sentence);
    fitSentence();
}

void EmptyState::setButtonText(const QString &text)
{
    m_button->setText(text);
    m_button->setVisible(!text.isEmpty());
}

void EmptyState::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyLook();
    if (event->type() == QEvent::FontChange)
        fitSentence();
}

/// Sets the sentence's height: an aligned label in a layout is not asked for its height at a given width.
void EmptyState::fitSentence()
{
    m_sentence->setFixedHeight(std::max(0, m_sentence->heightForWidth(readableWidth)));
}

void EmptyState::applyLook()
{
    constexpr int side = 96;
    // Drawn again here, since icons follow the palette.
    m_picture->setPixmap(m_icon.pixmap(QSize(side, side), devicePixelRatioF()));
    m_sentence->setPalette(quietPalette(palette()));
}

} // namespace brinemark

#include "moc_EmptyState.cpp"
