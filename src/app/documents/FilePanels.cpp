#include "app/documents/FilePanels.h"

#include "base/text/Texts.h"
#include "model/TankFile.h"
#include "ui/Sheets.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHash>
#include <QHeaderView>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTreeView>

namespace brinemark
{

namespace
{

/// Leaves folders and tank files. What a file holds is looked at once, when the panel first lists it.
class TankFileFilter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    /// The file system's own order: folders first, sizes and dates by value and not by their texts.
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

/// Saves under the extension "xml" whatever else the name has dots in: "Reef 2.5" would otherwise keep "5" for its
/// extension and be no tank file to the next open panel. The panel then asks about the file that is really written.
class FilePanel : public QFileDialog
{
public:
    using QFileDialog::QFileDialog;

protected:
    void accept() override
    {
        auto *name = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        if (acceptMode() == AcceptSave && name) {
            const QFileInfo typed(directory(), name->text());
            const bool namesFile = !typed.fileName().isEmpty() && typed.fileName() != u"~" && !typed.isDir();
            if (namesFile && typed.suffix().compare(u"xml", Qt::CaseInsensitive) != 0)
                name->setText(name->text() + QStringLiteral(".xml"));
        }
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

/// Both panels are the toolkit's own, since only that one can carry the check box.
QFileDialog *makePanel(QWidget *window, const QString &objectName, QFileDialog::AcceptMode mode)
{
    auto *panel = new FilePanel(window);
    panel->setObjectName(objectName);
    panel->setOption(QFileDialog::DontUseNativeDialog);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setAcceptMode(mode);
    panel->setNameFilter(text("TankFileFilter"));
    if (auto *files = panel->findChild<QTreeView *>(QStringLiteral("treeView"))) {
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents); // types and dates are cut off otherwise
        files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        panel->resize(720, 480);
    }
    return panel;
}

void openWith(QWidget *window, QFileDialog *panel, QCheckBox *check, FilePanelCompletion completion)
{
    QObject::connect(panel, &QDialog::finished, panel, [panel, check, completion = std::move(completion)](int code) {
        FilePanelAnswer answer;
        answer.ok = code == QDialog::Accepted;
        answer.path = answer.ok ? panel->selectedFiles().value(0) : QString();
        answer.makeDefault = check && check->isChecked();
        // The completion may show the next sheet: let this one go first.
        QMetaObject::invokeMethod(
            panel->parent(), [completion, answer] { completion(answer); }, Qt::QueuedConnection);
    });
    openSheet(window, panel);
}

} // namespace

void beginOpenPanel(QWidget *window, std::optional<bool> makeDefault, FilePanelCompletion completion)
{
    QFileDialog *panel = makePanel(window, QStringLiteral("openPanel"), QFileDialog::AcceptOpen);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setProxyModel(new TankFileFilter(panel));
    QCheckBox *check = makeDefault ? addAccessoryView(*panel, *makeDefault) : nullptr;
    openWith(window, panel, check, std::move(completion));
}

void beginSavePanel(QWidget *window, const QString &proposedName, bool makeDefault, FilePanelCompletion completion)
{
    QFileDialog *panel = makePanel(window, QStringLiteral("savePanel"), QFileDialog::AcceptSave);
    panel->setFileMode(QFileDialog::AnyFile);
    panel->selectFile(proposedName);
    QCheckBox *check = addAccessoryView(*panel, makeDefault);
    openWith(window, panel, check, std::move(completion));
}

} // namespace brinemark
