// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/documents/FilePanels.h"

#include "base/text/Texts.h"
#include "model/TankFile.h"
#include "ui/Alerts.h"
#include "ui/HelpWindow.h"
#include "ui/SavePanel.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHash>
#include <QSortFilterProxyModel>

#include <memory>

namespace brinemark
{

namespace
{

/// Shows only folders and tank files. The content of a file is examined once, when the panel first lists it.
class TankFileFilter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    /// Sorts as the file system model does: folders first, sizes and dates by value rather than by their texts.
    void sort(int column, Qt::SortOrder order) override { sourceModel()->sort(column, order); }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override
    {
        const QModelIndex index = sourceModel()->index(row, 0, parent);
        if (sourceModel()->hasChildren(index))
            return true;
        const QString path = index.data(Qt::UserRole + 1).toString(); // QFileSystemModel::FilePathRole
        const auto known = m_known.constFind(path);
        return known != m_known.constEnd() ? *known : *m_known.insert(path, looksLikeTankFile(path));
    }

private:
    mutable QHash<QString, bool> m_known;
};

/// Chooses a tank file. A name that was typed can name any file, so the choice is checked as well as the rows.
class TankFilePanel : public QFileDialog
{
public:
    using QFileDialog::QFileDialog;

    void accept() override
    {
        const QFileInfo chosen(selectedFiles().value(0));
        if (!chosen.exists() || chosen.isDir() || checkTankFile(this, chosen.filePath()))
            QFileDialog::accept();
    }
};

QCheckBox *addAccessoryView(QFileDialog &panel, bool makeDefault)
{
    auto *check = new QCheckBox(text("MakeDefaultCheck"), &panel);
    check->setObjectName(QStringLiteral("makeDefaultCheck"));
    check->setChecked(makeDefault);
    if (auto *grid = qobject_cast<QGridLayout *>(panel.layout()))
        grid->addWidget(check, grid->rowCount(), 0, 1, grid->columnCount());
    return check;
}

void openWith(QWidget *window, QFileDialog *panel, QCheckBox *check, FilePanelCompletion completion)
{
    // The panel is deleted before the completion runs, so the box is read when the panel finishes.
    auto makeDefault = std::make_shared<bool>(false);
    QObject::connect(panel, &QDialog::finished, panel,
                     [check, makeDefault] { *makeDefault = check && check->isChecked(); });
    showHelpOnKey(panel, QStringLiteral("files"));
    openFilePanel(window, panel, [makeDefault, completion = std::move(completion)](const QString &path) {
        completion({!path.isEmpty(), path, *makeDefault});
    });
}

} // namespace

bool checkTankFile(QWidget *window, const QString &path)
{
    if (looksLikeTankFile(path))
        return true;
    const QFileInfo file(path);
    const auto said = [&](TextKey title, TextKey message) {
        return Alert{.title = fillPlaceholders(text(title), {file.fileName()}), .message = text(message)};
    };
    beep();
    beginAlertSheet(window, file.exists() ? said("NotATankFileTitle"_key, "NotATankFileMessage"_key)
                                          : said("FileGoneTitle"_key, "FileGoneMessage"_key));
    return false;
}

void beginOpenPanel(QWidget *window, std::optional<bool> makeDefault, FilePanelCompletion completion)
{
    auto *panel = new TankFilePanel(window);
    panel->setObjectName(QStringLiteral("openPanel"));
    // Only the toolkit's own panel can look into the files that it lists, and have a check box.
    panel->setOption(QFileDialog::DontUseNativeDialog);
    panel->setAcceptMode(QFileDialog::AcceptOpen);
    panel->setNameFilter(text("TankFileFilter"));
    arrangeFilePanel(*panel);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setProxyModel(new TankFileFilter(panel));
    QCheckBox *check = makeDefault ? addAccessoryView(*panel, *makeDefault) : nullptr;
    openWith(window, panel, check, std::move(completion));
}

void beginSavePanel(QWidget *window, const QString &proposedName, bool makeDefault, FilePanelCompletion completion)
{
    SavePanelOptions options{QStringLiteral("savePanel")};
    options.proposedName = proposedName;
    options.extended = true;
    options.kinds = {{QStringLiteral("xml"), text("TankFileFilter")}};
    auto *panel = new SavePanel(window, options);
    QCheckBox *check = addAccessoryView(*panel, makeDefault);
    openWith(window, panel, check, std::move(completion));
}

} // namespace brinemark
