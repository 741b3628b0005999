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
 * Where the workstation's connection and the shared formats are edited, and from where the tables are installed. It
 * stands in the start sequence while there is no connection, and behind the menu entry "General".
 */
class ConfigDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit ConfigDialog(QWidget* parent = nullptr);
    ~ConfigDialog() override;

    /** What the start sequence does when the settings have been saved. */
    void setReconnect(std::function<void()> reconnect) { m_reconnect = std::move(reconnect); }

    void done(int result) override;
    // No button of the form bears this name.
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
    /** False when the file could not be written; the user has been told then. */
    bool saveSettings();
    void saveLocalization();
    /** Asks what to do about prices in another currency than that of the chosen locale; false: it is not to be saved.
     */
    bool settleCurrencies();
    [[nodiscard]] static bool isConnected();
    [[nodiscard]] ConnectionEdits connectionEdits() const;
    void setInstalling(bool installing);
    /** Keeps the program alive meanwhile, with the dialog locked. */
    void waitFor(int milliseconds);

    std::unique_ptr<Ui::ConfigDialog> m_ui;
    QString m_settingsPath;
    BusinessConfiguration* m_configuration;
    // Lies in the context's pool, which can be cleared from this very dialog.
    QPointer<EntityConfigLocalizationFormat> m_localization;
    std::function<void()> m_reconnect;
    bool m_installing = false;
};
