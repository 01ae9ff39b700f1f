// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/SavePanel.h"

#include "ui/Sheets.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTreeView>

#include <algorithm>

namespace brinemark
{

SavePanel::SavePanel(QWidget *window, const SavePanelOptions &options)
    : QFileDialog(window)
    , m_kinds(options.kinds)
{
    setObjectName(options.objectName);
    setOption(DontUseNativeDialog);
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    QStringList filters;
    for (const FileKind &kind : m_kinds)
        filters << kind.filter;
    setNameFilters(filters);
    if (!options.message.isEmpty())
        setWindowTitle(options.message);
    if (!options.folder.isEmpty())
        setDirectory(options.folder);
    arrangeFilePanel(*this);
    if (!options.proposedName.isEmpty())
        selectFile(fileNameFor(options.proposedName));
}

QString SavePanel::chosenSuffix() const
{
    const QString chosen = selectedNameFilter();
    for (const FileKind &kind : m_kinds) {
        if (kind.filter == chosen)
            return kind.suffix;
    }
    return m_kinds.isEmpty() ? QString() : m_kinds.first().suffix;
}

void SavePanel::accept()
{
    // Without this, "Reef 2.5" would count as having the suffix "5". The name is completed before the panel asks about
    // overwriting, so that it asks about the file that is really written.
    if (auto *name = findChild<QLineEdit *>(QStringLiteral("fileNameEdit")); name && !m_kinds.isEmpty()) {
        const QFileInfo typed(directory(), name->text());
        const bool namesFile = !typed.fileName().isEmpty() && typed.fileName() != u"~" && !typed.isDir();
        const bool hasSuffix = std::any_of(m_kinds.begin(), m_kinds.end(), [&](const FileKind &kind) {
            return typed.suffix().compare(kind.suffix, Qt::CaseInsensitive) == 0;
        });
        if (namesFile && !hasSuffix)
            name->setText(name->text() + u'.' + chosenSuffix());
    }
    QFileDialog::accept();
}

void arrangeFilePanel(QFileDialog &panel)
{
    if (auto *files = panel.findChild<QTreeView *>(QStringLiteral("treeView"))) {
        // Types and dates would be cut off otherwise.
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        panel.resize(720, 480);
    }
}

void openFilePanel(QWidget *window, QFileDialog *panel, std::function<void(const QString &path)> completion)
{
    panel->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(panel, &QDialog::finished, panel, [panel, completion = std::move(completion)](int code) {
        const QString path = code == QDialog::Accepted ? panel->selectedFiles().value(0) : QString();
        // The completion may open another sheet, so it runs after this one has closed.
        QMetaObject::invokeMethod(
            panel->parent(), [completion, path] { completion(path); }, Qt::QueuedConnection);
    });
    openSheet(window, panel);
}

void beginSavePanel(QWidget *window, const SavePanelOptions &options,
                    std::function<void(const QString &path)> completion)
{
    openFilePanel(window, new SavePanel(window, options), std::move(completion));
}

QString fileNameFor(const QString &text)
{
    constexpr qsizetype longest = 200; // bytes in UTF-8; file systems allow 255, including the suffix
    QString name;
    for (const QChar c : text.simplified()) {
        if (name.isEmpty() && (c == u'.' || c == u' '))
            continue;
        if (name.size() == longest)
            break;
        const bool reserved = c.unicode() < 32 || c.unicode() == 127 || QStringView(u"/\\:*?\"<>|").contains(c);
        name += reserved ? QChar(u'-') : c;
    }
    while (name.toUtf8().size() > longest || (!name.isEmpty() && name.back().isHighSurrogate()))
        name.chop(name.back().isLowSurrogate() ? 2 : 1);
    name = name.trimmed();
    return name.isEmpty() ? QStringLiteral("-") : name;
}

QString documentsFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(folder).exists() ? folder : QString();
}

} // namespace brinemark

#include "moc_SavePanel.cpp"
