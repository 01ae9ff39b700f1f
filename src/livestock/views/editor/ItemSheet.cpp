// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/editor/ItemSheet.h"

#include "livestock/views/PictureWell.h"
#include "model/ItemImage.h"
#include "ui/HelpWindow.h"
#include "ui/Spacing.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

namespace brinemark
{

ItemSheet::ItemSheet(QWidget *parent)
    : QDialog(parent)
    , tabView(new QTabWidget)
    , fishImageView(new PictureWell)
    , chooseImageButton(new QPushButton(text("PictureChoose")))
    , deleteImageButton(new QPushButton(text("PictureRemove")))
    , helpButton(new QPushButton(text("HelpButton")))
    , submitButton(new QPushButton(text("ItemSubmitButton")))
    , searchButton(new QPushButton(text("ItemSearchButton")))
    , cancelButton(new QPushButton(text("CancelLabel")))
    , saveButton(new QPushButton(text("SaveLabel")))
{
    setObjectName(QStringLiteral("itemSheet"));
    const std::pair<QWidget *, const char *> names[]{{tabView, "tabView"},
                                                     {chooseImageButton, "chooseImageButton"},
                                                     {deleteImageButton, "deleteImageButton"},
                                                     {helpButton, "helpButton"},
                                                     {submitButton, "submitButton"},
                                                     {searchButton, "searchButton"},
                                                     {cancelButton, "cancelButton"},
                                                     {saveButton, "saveButton"}};
    for (const auto &[control, name] : names)
        control->setObjectName(QLatin1String(name));
    submitButton->setToolTip(text("ItemSubmitToolTip"));
    searchButton->setToolTip(text("ItemSearchToolTip"));

    tabView->setAccessibleName(text("ItemPagesName"));
    tabView->addTab(form.pages().at(0), text("ItemTabNames"));
    tabView->addTab(form.pages().at(1), text("ItemTabWater"));
    tabView->addTab(makePicturePage(), text("ItemTabPicture"));
    auto *buttons = new QDialogButtonBox;
    buttons->addButton(helpButton, QDialogButtonBox::HelpRole);
    buttons->addButton(cancelButton, QDialogButtonBox::RejectRole);
    buttons->addButton(saveButton, QDialogButtonBox::AcceptRole);
    auto *services = new QHBoxLayout;
    services->setSpacing(spacing::group);
    services->addWidget(searchButton);
    services->addWidget(submitButton);
    services->addStretch();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(spacing::aroundContent);
    column->setSpacing(spacing::section);
    column->addLayout(services);
    column->addWidget(tabView, 1);
    column->addWidget(buttons);
    for (QPushButton *button : findChildren<QPushButton *>())
        button->setAutoDefault(false); // so that Return presses the default button
    saveButton->setDefault(true);
    showHelpOnKey(this, QStringLiteral("livestock-new"));
}

QWidget *ItemSheet::makePicturePage()
{
    auto *page = new QWidget;
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(spacing::group);
    buttons->addWidget(chooseImageButton);
    buttons->addWidget(deleteImageButton);
    buttons->addStretch();
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(spacing::aroundContent);
    column->setSpacing(spacing::group);
    column->addWidget(fishImageView, 1);
    column->addLayout(buttons);
    return page;
}

void ItemSheet::showPicture(const ItemImage &picture)
{
    fishImageView->setPicture(picture);
    deleteImageButton->setEnabled(!picture.isNone());
}

void ItemSheet::showFirstPage()
{
    tabView->setCurrentIndex(0);
    form.nameField().setFocus();
    form.nameField().selectAll();
}

void ItemSheet::reject()
{
    done(Cancelled);
}

} // namespace brinemark

#include "moc_ItemSheet.cpp"
