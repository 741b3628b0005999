#pragma once

#include "shell/database/tools/ConnectionEdits.h"

#include <QDialog>
#include <QPointer>

#include <memory>

class QThread;
class ZavelConverter;

namespace Ui
{
class DialogConverter;
}

/** Asks for the database of the former system, and shows how its data are brought over. */
class DialogConverter final : public QDialog
{
    Q_OBJECT

public:
    explicit DialogConverter(QWidget* parent = nullptr);
    /** Stops a run and waits for its row in hand. */
    ~DialogConverter() override;

    /** Asks first while a run is under way, and closes when it has ended. */
    void done(int result) override;

public slots:
    void onProgress(int perc, const QString& status);
    void errorString(const QString& err);

private slots:
    void on_btnConvert_clicked();

private:
    /** The first thing that is missing, put into words. */
    [[nodiscard]] QString missing() const;
    void setRunning(bool running);
    void ended();

    std::unique_ptr<Ui::DialogConverter> m_ui;
    ConnectionEdits m_source;
    QPointer<QThread> m_thread;
    QPointer<ZavelConverter> m_converter;
    bool m_closing = false;
};
