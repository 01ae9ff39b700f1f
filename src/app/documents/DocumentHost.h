// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace brinemark
{

struct WriteResult;

/// The command that waits for a save.
enum class SaveContext { None, NewFile, OpenFile, Quit };

/// What TankDocument needs of the window around it.
class DocumentHost
{
public:
    virtual ~DocumentHost() = default;

    virtual void showDocumentTitle(const QString &path) = 0; ///< the empty path is the untitled document
    virtual void showEditedMark(bool edited) = 0;
    virtual void resetNotificationView() = 0;
    virtual void forgetRows() = 0; ///< called before the tanks are removed
    virtual void reloadTree() = 0; ///< opens the rows whose flags in the tanks are set
    virtual void fitTreeColumn() = 0;
    virtual void selectTreeRow(int row) = 0;
    [[nodiscard]] virtual int selectedTreeRow() const = 0;
    virtual void refreshTree() = 0;
    virtual void display() = 0; ///< shows the window; an empty tree gets its first tank
    virtual void showNotificationIfOnScreen() = 0;
    virtual void updateColumnInfo() = 0; ///< has the water-test table store its layout in the tank, if it is on screen
    virtual void forgetUndo() = 0;       ///< drops the undo steps of the document that was closed

    // The questions and reports. Each returns once the user has dismissed it.
    virtual bool askKeepBackupOfOlderFile() = 0;
    enum class OverwriteAnswer { Overwrite, SaveElsewhere, Cancel };
    enum class OverwriteReason { ChangedOnDisk, NotFullyRead };
    virtual OverwriteAnswer askBeforeOverwriting(const QString &path, OverwriteReason reason) = 0;
    virtual void reportReadError() = 0;
    enum class FailedSaveAnswer { SaveElsewhere, Cancel, GoOn };
    /// Says why a save failed. With a command waiting, also asks whether it may discard the changes; without one, the
    /// answer is Cancel.
    virtual FailedSaveAnswer reportSaveError(const WriteResult &failure, SaveContext context) = 0;
};

} // namespace brinemark
