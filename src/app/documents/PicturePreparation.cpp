// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/documents/PicturePreparation.h"

#include "base/text/Texts.h"
#include "model/pictures/PngConversion.h"
#include "ui/Alerts.h"
#include "ui/CaptionForm.h"
#include "ui/Sheets.h"
#include "ui/Spacing.h"
#include "ui/pictures/PictureConverter.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace brinemark
{

namespace
{

constexpr int progressWidth = 360;

} // namespace

PicturePreparation::PicturePreparation(const TankList &tanks, QWidget *window)
    : m_tanks(tanks)
    , m_window(window)
{
}

PicturePreparation::~PicturePreparation() = default; // the sheet belongs to the window

void PicturePreparation::prepare(const QString &fileName, std::function<void(bool)> then)
{
    if (delays([this, fileName, then] { prepare(fileName, then); }))
        return;
    const auto pictures = int(unconvertedPictures(m_tanks).size());
    if (pictures == 0 || isUnattended()) {
        then(true);
        return;
    }
    m_then = std::move(then);
    openProgressSheet(fileName, pictures);
    PictureConverter &converter = PictureConverter::sharedInstance();
    connect(&converter, &PictureConverter::converted, this, &PicturePreparation::update);
    converter.convertLater(m_tanks);
}

bool PicturePreparation::delays(std::function<void()> command)
{
    if (!m_sheet)
        return false;
    m_delayed.push_back(std::move(command));
    return true;
}

void PicturePreparation::openProgressSheet(const QString &fileName, int pictures)
{
    m_sheet =
        new QDialog(m_window, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    m_sheet->setObjectName(QStringLiteral("picturesSheet"));
    m_sheet->setAttribute(Qt::WA_DeleteOnClose);
    m_bar = new QProgressBar;
    m_bar->setObjectName(QStringLiteral("picturesProgress"));
    m_bar->setAccessibleName(text("SavingPicturesMessage"));
    m_bar->setMinimumWidth(progressWidth);
    m_bar->setMaximum(pictures == 1 ? 0 : pictures); // one alone shows that something happens, not how much
    auto *message = new QLabel(text("SavingPicturesMessage"));
    message->setTextFormat(Qt::PlainText);
    auto *buttons = new QDialogButtonBox;
    QPushButton *cancel = buttons->addButton(text("CancelLabel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cancelButton"));
    cancel->setAutoDefault(false); // a Return that was meant for the window must not call the save off
    auto *column = new QVBoxLayout(m_sheet);
    column->setContentsMargins(spacing::aroundContent);
    column->setSpacing(spacing::group);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(makeCaption(fillPlaceholders(text("SavingPicturesTitle"), {fileName})));
    column->addWidget(message);
    column->addWidget(m_bar);
    column->addSpacing(spacing::group);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, m_sheet, &QDialog::reject);
    connect(m_sheet, &QDialog::rejected, this, [this] { end(false); });
    openSheet(m_window, m_sheet);
}

void PicturePreparation::update()
{
    // Counted anew each time, because another window may have brought a picture into the document.
    const std::vector<ItemImage> left = unconvertedPictures(m_tanks);
    if (left.empty()) {
        end(true);
        return;
    }
    PictureConverter::sharedInstance().convertLater(m_tanks);
    if (m_bar->maximum() > 0)
        m_bar->setValue(qMax(0, m_bar->maximum() - int(left.size())));
}

void PicturePreparation::end(bool ready)
{
    disconnect(&PictureConverter::sharedInstance(), nullptr, this, nullptr);
    disconnect(m_sheet, nullptr, this, nullptr);
    std::exchange(m_sheet, nullptr)->done(QDialog::Accepted);
    std::exchange(m_then, nullptr)(ready);
    for (const auto &command : std::exchange(m_delayed, {}))
        QMetaObject::invokeMethod(this, command, Qt::QueuedConnection);
}

} // namespace brinemark

#include "moc_PicturePreparation.cpp"
