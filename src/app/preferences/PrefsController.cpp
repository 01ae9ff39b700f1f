// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/preferences/PrefsController.h"

#include "app/documents/FilePanels.h"
#include "app/preferences/CalendarNames.h"
#include "base/PreferenceKeys.h"
#include "base/Preferences.h"
#include "base/text/Texts.h"
#include "ui/AlertPanelDontAskAgain.h"
#include "ui/HelpWindow.h"
#include "ui/Spacing.h"
#include "ui/WindowPlacement.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>

namespace brinemark
{

namespace
{

// The tags of the radio buttons.
constexpr int autoSaveTag = 0;
constexpr int askTag = 1;

// The smallest width in pixels; without it, short calendar names would make the pop-up narrow.
constexpr int calendarPopupWidth = 237;

} // namespace

PrefsController::PrefsController()
    : m_prefWindow(std::make_unique<QDialog>())
{
    m_prefWindow->setObjectName(QStringLiteral("prefWindow"));
    showHelpOnKey(m_prefWindow.get(), QStringLiteral("preferences"));
    m_prefWindow->setWindowTitle(text("PrefsTitle"));

    m_autoSaveMatrix = new QButtonGroup(this);
    auto *choices = new QVBoxLayout;
    choices->setSpacing(spacing::tight);
    const auto addChoice = [&](int tag, TextKey label, const QString &name) {
        auto *button = new QRadioButton(text(label));
        button->setObjectName(name);
        m_autoSaveMatrix->addButton(button, tag);
        choices->addWidget(button);
    };
    addChoice(autoSaveTag, "PrefsAutoSaveOn"_key, QStringLiteral("autoSaveOn"));
    addChoice(askTag, "PrefsAutoSaveAsk"_key, QStringLiteral("autoSaveAsk"));

    m_defaultFilePath = new QLineEdit;
    m_defaultFilePath->setObjectName(QStringLiteral("defaultFilePath"));
    m_defaultFilePath->setAccessibleName(text("PrefsDefaultFile"));
    m_defaultFilePath->setReadOnly(true);
    m_defaultFilePath->setMinimumWidth(240);
    const auto makeButton = [](TextKey label, const QString &name) {
        auto *button = new QPushButton(text(label));
        button->setObjectName(name);
        button->setAutoDefault(false);
        return button;
    };
    m_defaultFileSetButton = makeButton("PrefsChoose"_key, QStringLiteral("defaultFileSetButton"));
    m_defaultFileClearButton = makeButton("PrefsClear"_key, QStringLiteral("defaultFileClearButton"));
    m_defaultFileClearButton->setToolTip(text("PrefsClearToolTip"));
    auto *file = new QHBoxLayout;
    file->setSpacing(spacing::group);
    file->addWidget(m_defaultFilePath, 1);
    file->addWidget(m_defaultFileSetButton);
    file->addWidget(m_defaultFileClearButton);

    m_overdueCheck = new QCheckBox(text("PrefsOverdueCheck"));
    m_overdueCheck->setObjectName(QStringLiteral("overdueCheck"));

    m_iCalPopup = new QComboBox;
    m_iCalPopup->setObjectName(QStringLiteral("iCalPopup"));
    m_iCalPopup->setMinimumWidth(calendarPopupWidth);
    m_iCalPopup->setPlaceholderText(text("PrefsNoCalendars"));

    m_hiddenMessages = new QLabel;
    m_hiddenMessages->setObjectName(QStringLiteral("hiddenMessages"));
    m_showMessagesButton = makeButton("PrefsShowMessages"_key, QStringLiteral("showMessagesButton"));
    m_showMessagesButton->setToolTip(text("PrefsShowMessagesToolTip"));
    auto *messages = new QHBoxLayout;
    messages->setSpacing(spacing::content);
    messages->addWidget(m_hiddenMessages);
    messages->addWidget(m_showMessagesButton);
    messages->addStretch();

    const auto caption = [](TextKey key, QWidget *buddy) {
        auto *label = new QLabel(text(key));
        label->setBuddy(buddy);
        return label;
    };
    auto *form = new QFormLayout(m_prefWindow.get());
    form->setContentsMargins(spacing::aroundContent);
    form->setHorizontalSpacing(spacing::section);
    form->setVerticalSpacing(spacing::content);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
    form->addRow(caption("PrefsOnQuit"_key, m_autoSaveMatrix->button(autoSaveTag)), choices);
    form->addRow(caption("PrefsDefaultFile"_key, m_defaultFileSetButton), file);
    form->addRow(caption("PrefsSchedule"_key, m_overdueCheck), m_overdueCheck);
    form->addRow(caption("PrefsCalendar"_key, m_iCalPopup), m_iCalPopup);
    form->addRow(caption("PrefsHiddenMessages"_key, m_showMessagesButton), messages);
    form->setSizeConstraint(QLayout::SetFixedSize);

    connect(m_autoSaveMatrix, &QButtonGroup::idClicked, this, &PrefsController::autoSaveMatrixAction);
    connect(m_overdueCheck, &QCheckBox::clicked, this, &PrefsController::overdueAction);
    connect(m_defaultFileSetButton, &QPushButton::clicked, this, &PrefsController::defaultFileSetFileAction);
    connect(m_defaultFileClearButton, &QPushButton::clicked, this, &PrefsController::defaultFileClearAction);
    connect(m_showMessagesButton, &QPushButton::clicked, this, &PrefsController::showMessagesAction);
    m_prefWindow->installEventFilter(this);
    connect(m_iCalPopup, &QComboBox::activated, this, &PrefsController::iCalPopupAction);
}

PrefsController::~PrefsController() = default;

void PrefsController::display()
{
    const Preferences &preferences = Preferences::shared();
    m_overdueCheck->setChecked(preferences.value(preference::activityOverdue, false));
    const bool autoSave = preferences.value(preference::autoSaveOnQuit, false);
    m_autoSaveMatrix->button(autoSave ? autoSaveTag : askTag)->setChecked(true);
    showStored();
    readCalendars();
    m_prefWindow->adjustSize();
    centreOnScreen(*m_prefWindow);
    showInFront(*m_prefWindow);
}

void PrefsController::showStored()
{
    const QString path = Preferences::shared().value(preference::defaultFile, QString());
    m_defaultFilePath->setText(path.isEmpty() ? text("NoneSelected") : QDir::toNativeSeparators(path));
    m_defaultFilePath->setToolTip(path);
    m_defaultFilePath->setCursorPosition(0);
    m_defaultFileClearButton->setEnabled(!path.isEmpty());
    const int hidden = AlertPanelDontAskAgain::silencedCount();
    m_hiddenMessages->setText(hidden == 0 ? text("PrefsHiddenMessagesNone") : QLocale().toString(hidden));
    m_showMessagesButton->setEnabled(hidden > 0);
}

bool PrefsController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        showStored();
    return QObject::eventFilter(watched, event);
}

void PrefsController::readCalendars()
{
    if (!calendars::applicationInstalled()) {
        m_iCalPopup->setEnabled(false);
        return;
    }
    const std::optional<QStringList> names = calendars::read();
    if (!names) {
        m_iCalPopup->setEnabled(false);
        return;
    }
    m_iCalPopup->setEnabled(true);
    if (!names->isEmpty()) {
        m_iCalPopup->clear();
        m_iCalPopup->addItems(*names);
    }
    Preferences &preferences = Preferences::shared();
    m_iCalPopup->setCurrentIndex(m_iCalPopup->findText(preferences.value(preference::calName, QString())));
    if (m_iCalPopup->currentIndex() < 0 && m_iCalPopup->count() > 0) {
        m_iCalPopup->setCurrentIndex(0);
        iCalPopupAction();
    }
}

void PrefsController::iCalPopupAction()
{
    Preferences::shared().set(preference::calName, m_iCalPopup->currentText());
}

void PrefsController::overdueAction()
{
    Preferences::shared().set(preference::activityOverdue, m_overdueCheck->isChecked());
}

void PrefsController::autoSaveMatrixAction()
{
    Preferences::shared().set(preference::autoSaveOnQuit, m_autoSaveMatrix->checkedId() == autoSaveTag);
}

void PrefsController::defaultFileSetFileAction()
{
    beginOpenPanel(m_prefWindow.get(), {},
                   [this](const FilePanelAnswer &answer) { openFileDidEnd(answer.ok, answer.path); });
}

void PrefsController::openFileDidEnd(bool ok, const QString &path)
{
    if (!ok || path.isEmpty())
        return;
    Preferences::shared().set(preference::defaultFile, path);
    showStored();
}

void PrefsController::defaultFileClearAction()
{
    Preferences::shared().remove(preference::defaultFile);
    showStored();
}

void PrefsController::showMessagesAction()
{
    AlertPanelDontAskAgain::clearAllValues();
    showStored();
}

} // namespace brinemark

#include "moc_PrefsController.cpp"
