// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/documents/DocumentHost.h"

namespace brinemark
{

class ShoalwatchController;

/// The main window as the open document sees it: shows its title, mark and rows, and asks its questions.
class MainDocumentHost final : public DocumentHost
{
public:
    explicit MainDocumentHost(ShoalwatchController &main);

    void showDocumentTitle(const QString &path) override;
    void showEditedMark(bool edited) override;
    void resetNotificationView() override;
    void forgetRows() override;
    void reloadTree() override;
    void fitTreeColumn() override;
    void selectTreeRow(int row) override;
    [[nodiscard]] int selectedTreeRow() const override;
    void refreshTree() override;
    void display() override;
    void showNotificationIfOnScreen() override;
    void updateColumnInfo() override;
    void forgetUndo() override;
    bool askKeepBackupOfOlderFile() override;
    OverwriteAnswer askBeforeOverwriting(const QString &path, OverwriteReason reason) override;
    void reportReadError() override;
    FailedSaveAnswer reportSaveError(const WriteResult &failure, SaveContext context) override;

private:
    ShoalwatchController &m_main;
};

} // namespace brinemark
