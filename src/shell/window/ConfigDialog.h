#pragma once

#include "shell/database/tools/ConnectionEdits.h"

#include <QDialog>
#include <QPointer>

#include <functional>
#include <memory>

class BusinessConfiguration;
class EntityConfigLocalizationFormat;

namespace Ui
{
class ConfigDialog;
}

/**
 * Edits the workstation's database connection and the shared formats, and installs the tables. Shown at program start
 * while there is no connection, and by the menu entry "General".
 */
class ConfigDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit ConfigDialog(QWidget* parent = nullptr);
    ~ConfigDialog() override;

    /** Sets the function to call after the settings have been saved; the start sequence uses it to reconnect. */
    void setReconnect(std::function<void()> reconnect) { m_reconnect = std::move(reconnect); }

    void done(int result) override;
    // Not a slot, because the form has no button of this name.
    void on_btnRestart_clicked();

signals:
    void onUpdateDBConf();
    void onRestart();
    void onCloseAllTab();
    void onClearMemory();

public slots:
    void onProgress(int perc, const QString& status);
    void errorString(const QString& err);

private slots:
    void on_btnSaveDBConf_clicked();
    void on_buttonBox_accepted();
    void on_installBtn_clicked();
    void on_btnListEntities_clicked();
    void on_btnKillEntities_clicked();
    void onClearMemory_trigered();

private:
    void loadSettings();
    void loadLocalization();
    /** False if the file could not be written; the user has already seen the error. */
    bool saveSettings();
    void saveLocalization();
    /** Asks what to do about prices whose currency is not that of the chosen locale. False: do not save. */
    bool settleCurrencies();
    [[nodiscard]] static bool isConnected();
    [[nodiscard]] ConnectionEdits connectionEdits() const;
    void setInstalling(bool installing);
    /** Waits with the dialog disabled; events are still processed. */
    void waitFor(int milliseconds);

    std::unique_ptr<Ui::ConfigDialog> m_ui;
    QString m_settingsPath;
    BusinessConfiguration* m_configuration;
    // Owned by the entity pool of the context, which this dialog can clear.
    QPointer<EntityConfigLocalizationFormat> m_localization;
    std::function<void()> m_reconnect;
    bool m_installing = false;
};
