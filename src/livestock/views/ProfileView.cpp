// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/ProfileView.h"

#include "livestock/views/PictureView.h"
#include "model/Tank.h"
#include "ui/CaptionForm.h"
#include "ui/Colours.h"
#include "ui/Icons.h"
#include "ui/Spacing.h"
#include "ui/TitleLine.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

namespace brinemark
{

namespace
{

constexpr QSize profilePictureSize(160, 120);

} // namespace

ProfileView::ProfileView(QWidget *parent)
    : QWidget(parent)
    , m_titleLine(new TitleLine)
    , m_scrollArea(new QScrollArea)
    , m_picture(new PictureView(profilePictureSize))
    , m_name(makeValue(QStringLiteral("name")))
    , m_sciName(makeValue(QStringLiteral("sciName")))
    , m_family(makeValue(QStringLiteral("family")))
    , m_notes(makeValue(QStringLiteral("notes")))
    , m_editButton(new QPushButton(icon("Edit"), text("Edit...")))
{
    setObjectName(QStringLiteral("fishDataView"));
    QFont bold = m_name->font();
    bold.setBold(true);
    m_name->setFont(bold);
    QFont italic = m_sciName->font();
    italic.setItalic(true);
    m_sciName->setFont(italic);
    m_scrollArea->setAccessibleName(text("ProfileViewTitle"));
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setWidget(makePage());
    m_editButton->setObjectName(QStringLiteral("editButton"));
    m_editButton->setToolTip(text("EditItemToolTip"));

    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(spacing::aroundGroup);
    buttons->addWidget(m_editButton);
    buttons->addStretch();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_titleLine);
    column->addWidget(m_scrollArea, 1);
    column->addLayout(buttons);
    showItem(nullptr);
}

QWidget *ProfileView::makePage()
{
    auto *names = new QVBoxLayout;
    names->setSpacing(spacing::tight);
    names->addWidget(m_name);
    names->addWidget(m_sciName);
    names->addWidget(m_family);
    auto *head = new QHBoxLayout;
    head->setSpacing(spacing::content);
    head->addWidget(m_picture, 0, Qt::AlignTop);
    head->addLayout(names, 1);
    head->setAlignment(names, Qt::AlignTop);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(spacing::group);
    grid->setVerticalSpacing(spacing::group);
    for (std::size_t i = 0; i < profileFields.size(); ++i) {
        const ProfileField &field = profileFields[i];
        m_values[i] = makeValue(field.key.toString());
        addCaptioned(*grid, field.row, field.column, text(field.captionKey), m_values[i]);
    }

    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(spacing::content, spacing::tight, spacing::content, spacing::content);
    column->setSpacing(spacing::content);
    column->addLayout(head);
    column->addLayout(grid);
    auto *notes = new QVBoxLayout;
    notes->setSpacing(spacing::tight);
    notes->addWidget(makeCaption(text("FishDataNote")));
    notes->addWidget(m_notes);
    column->addLayout(notes);
    column->addStretch();
    return page;
}

QWidget *ProfileView::scrollArea() const
{
    return m_scrollArea;
}

void ProfileView::showItem(const ItemData *item)
{
    m_scrollArea->widget()->setVisible(item);
    m_editButton->setEnabled(item);
    m_titleLine->setTitle(item ? item->name : text("ProfileViewTitle"));
    m_titleLine->setSecondary(item && item->tank ? item->tank->name : QString());
    if (!item)
        return;
    m_picture->setPicture(item->itemImage);
    m_name->setText(item->name);
    m_sciName->setText(item->sciName);
    m_family->setText(item->family);
    for (std::size_t i = 0; i < profileFields.size(); ++i)
        m_values[i]->setText(profileText(*item, profileFields[i]));
    m_notes->setText(item->notes);
}

} // namespace brinemark

#include "moc_ProfileView.cpp"
