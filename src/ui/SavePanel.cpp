// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/SavePanel.h"

#include "base/PreferenceKeys.h"
#include "base/text/Texts.h"
#include "ui/Alerts.h"
#include "ui/Sheets.h"
#include "ui/Shell.h"

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
    setOption(DontUseNativeDialog, options.extended);
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    QStringList filters;
    for (const FileKind &kind : m_kinds)
        filters << kind.filter;
    setNameFilters(filters);
    if (!options.message.isEmpty())
        setWindowTitle(options.message);
    arrangeFilePanel(*this); // before a file is selected, which is looked for in the panel's folder
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

QString SavePanel::withSuffix(const QString &name) const
{
    // Without this, "Reef 2.5" would count as having the suffix "5".
    const QString suffix = QFileInfo(name).suffix();
    const bool complete = m_kinds.isEmpty() || std::any_of(m_kinds.begin(), m_kinds.end(), [&](const FileKind &kind) {
                              return suffix.compare(kind.suffix, Qt::CaseInsensitive) == 0;
                          });
    return complete ? name : name + u'.' + chosenSuffix();
}

QString SavePanel::chosenFile() const
{
    const QString chosen = selectedFiles().value(0);
    return chosen.isEmpty() ? chosen : withSuffix(chosen);
}

void SavePanel::accept()
{
    if (auto *name = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))) {
        // The toolkit's own panel. The name is completed before the panel asks about overwriting, so that it asks about
        // the file that is really written.
        const QFileInfo typed(directory(), name->text());
        if (!typed.fileName().isEmpty() && typed.fileName() != u"~" && !typed.isDir())
            name->setText(withSuffix(name->text()));
        QFileDialog::accept();
        return;
    }
    // The desktop's panel has closed and has asked about the name without the suffix only.
    const QString file = chosenFile();
    if (file == selectedFiles().value(0) || !QFileInfo::exists(file)) {
        QFileDialog::accept();
        return;
    }
    const Alert question{.title = fillPlaceholders(text("ReplaceFileTitle"), {QFileInfo(file).fileName()}),
                         .message = text("ReplaceFileMessage"),
                         .defaultButton = text("ReplaceFileButton"),
                         .alternateButton = text("CancelLabel")};
    beginAlertSheet(this, question, [this](int answer) {
        if (answer == AlertDefault)
            QFileDialog::accept();
        else
            reject();
    });
}

void arrangeFilePanel(QFileDialog &panel)
{
    if (const QString folder = panelFolder(); !folder.isEmpty())
        panel.setDirectory(folder);
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
        const auto *save = dynamic_cast<const SavePanel *>(panel);
        const QString chosen = save ? save->chosenFile() : panel->selectedFiles().value(0);
        const QString path = code == QDialog::Accepted ? chosen : QString();
        if (!path.isEmpty())
            Preferences::shared().set(preference::lastPanelFolder, QFileInfo(path).absolutePath());
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

QString panelFolder()
{
    const QString file = Shell::exists() ? Shell::shared().representedFilename() : QString();
    for (const QString &folder : {file.isEmpty() ? QString() : QFileInfo(file).absolutePath(),
                                  Preferences::shared().value(preference::lastPanelFolder, QString()),
                                  QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)}) {
        if (!folder.isEmpty() && QDir(folder).exists())
            return folder;
    }
    return {};
}

} // namespace brinemark
