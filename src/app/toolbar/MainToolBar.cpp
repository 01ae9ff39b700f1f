// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/toolbar/MainToolBar.h"

#include "app/toolbar/ToolbarCustomiseDialog.h"
#include "app/toolbar/ToolbarItems.h"
#include "base/PreferenceKeys.h"
#include "ui/Icons.h"
#include "ui/Sheets.h"
#include "ui/Spacing.h"

#include <QAction>
#include <QActionGroup>
#include <QContextMenuEvent>
#include <QMenu>
#include <QToolButton>
#include <QWidgetAction>

#include <utility>

namespace brinemark
{

namespace
{
constexpr int iconEdge = 32;
constexpr int spaceWidth = 32;
constexpr int captionedWidth = 64; // wide enough for captions of medium length, so that most buttons are equally wide
} // namespace

MainToolBar::MainToolBar(Trigger trigger, QWidget *parent)
    : QToolBar(parent)
    , m_trigger(std::move(trigger))
{
    setObjectName(QStringLiteral("fishWindowToolbar2"));
    setWindowTitle(text("ToolbarTitle"_key));
    setAccessibleName(windowTitle());
    setMovable(false);
    setFloatable(false);
    setAllowedAreas(Qt::TopToolBarArea);
    setIconSize(QSize(iconEdge, iconEdge));
    setContentsMargins(spacing::tight, 0, spacing::tight, 0);
    createToolbarDictionary();

    // QToolBar provides this action; hiding or showing the toolbar with it must be stored too.
    connect(toggleViewAction(), &QAction::triggered, this, &MainToolBar::setShown);

    m_configuration = ToolbarConfiguration::fromMap(Preferences::shared().value(preference::toolbarConfiguration, {}));
    rebuild();
    if (!m_configuration.visible)
        hide();
}

void MainToolBar::createToolbarDictionary()
{
    for (const ToolbarItem &item : toolbarItems) {
        if (item.repeatable())
            continue;
        const QString identifier = item.identifier;
        auto *action = new QAction(icon(item.icon), text(item.label), this);
        action->setObjectName(identifier);
        action->setToolTip(text(item.toolTip));
        action->setStatusTip(action->toolTip());
        // The menu items of these commands have menu roles; the toolbar's actions must not move into the application
        // menu as well.
        action->setMenuRole(QAction::NoRole);
        connect(action, &QAction::triggered, this, [this, identifier] {
            if (identifier == toolbarid::Customise)
                customise();
            else if (m_trigger)
                m_trigger(identifier);
        });
        m_toolbarDictionary.insert(identifier, action);
    }
}

void MainToolBar::validate(const Validator &canTrigger)
{
    for (auto entry = m_toolbarDictionary.cbegin(); entry != m_toolbarDictionary.cend(); ++entry)
        entry.value()->setEnabled(entry.key() == toolbarid::Customise || canTrigger(entry.key()));
}

void MainToolBar::setConfiguration(ToolbarConfiguration configuration)
{
    configuration.identifiers = usableToolbarIdentifiers(configuration.identifiers);
    if (configuration == m_configuration)
        return;
    m_configuration = std::move(configuration);
    rebuild();
    setVisible(m_configuration.visible);
    save();
}

void MainToolBar::setShown(bool shown)
{
    ToolbarConfiguration configuration = m_configuration;
    configuration.visible = shown;
    setConfiguration(std::move(configuration));
}

void MainToolBar::save() const
{
    Preferences::shared().set(preference::toolbarConfiguration, m_configuration.toMap());
}

void MainToolBar::rebuild()
{
    clear();
    m_fillers.clear();
    setToolButtonStyle(toolbarDisplayMode(m_configuration.display).style);
    for (const QString &identifier : std::as_const(m_configuration.identifiers)) {
        switch (toolbarItem(identifier)->kind) {
        case ToolbarItemKind::Action:
            addAction(m_toolbarDictionary.value(identifier));
            dressButton(m_toolbarDictionary.value(identifier));
            break;
        case ToolbarItemKind::Separator:
            m_fillers.emplace_back(addSeparator());
            break;
        case ToolbarItemKind::Space:
            m_fillers.emplace_back(addSpacer(false));
            break;
        case ToolbarItemKind::FlexibleSpace:
            m_fillers.emplace_back(addSpacer(true));
            break;
        }
    }
}

QAction *MainToolBar::addSpacer(bool flexible)
{
    auto *spacer = new QWidget(this);
    spacer->setObjectName(flexible ? QStringLiteral("toolbarFlexibleSpace") : QStringLiteral("toolbarSpace"));
    spacer->setSizePolicy(flexible ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Preferred);
    spacer->setMinimumWidth(flexible ? 0 : spaceWidth);
    return addWidget(spacer);
}

// QToolBar creates a new button whenever an action is added, so the button's properties are set each time.
void MainToolBar::dressButton(QAction *action)
{
    auto *button = qobject_cast<QToolButton *>(widgetForAction(action));
    if (!button)
        return;
    button->setObjectName(QLatin1String("toolbarButton.") + action->objectName());
    button->setAccessibleName(action->text());
    button->setAccessibleDescription(action->toolTip());
    if (m_configuration.display == ToolbarDisplay::IconAndText)
        button->setMinimumWidth(captionedWidth);
}

void MainToolBar::customise()
{
    if (auto *open = window()->findChild<ToolbarCustomiseDialog *>()) {
        open->raise();
        open->activateWindow();
        return;
    }
    const auto apply = [this](const ToolbarConfiguration &chosen) {
        ToolbarConfiguration configuration = chosen;
        configuration.visible = m_configuration.visible; // the dialog does not change the visibility
        setConfiguration(std::move(configuration));
    };
    auto *dialog = new ToolbarCustomiseDialog(m_configuration, apply, window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    openSheet(window(), dialog);
}

void MainToolBar::contextMenuEvent(QContextMenuEvent *event)
{
    auto *menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("toolbarMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto *group = new QActionGroup(menu);
    for (const ToolbarDisplayMode &mode : toolbarDisplayModes) {
        QAction *action = menu->addAction(text(mode.label), this, [this, display = mode.mode] {
            ToolbarConfiguration configuration = m_configuration;
            configuration.display = display;
            setConfiguration(std::move(configuration));
        });
        action->setObjectName(mode.name);
        action->setCheckable(true);
        action->setChecked(mode.mode == m_configuration.display);
        group->addAction(action);
    }
    menu->addSeparator();
    menu->addAction(text("MenuViewCustomiseToolbar"_key), this, &MainToolBar::customise)
        ->setObjectName(toolbarid::Customise);
    menu->popup(event->globalPos());
    event->accept();
}

} // namespace brinemark

#include "moc_MainToolBar.cpp"
