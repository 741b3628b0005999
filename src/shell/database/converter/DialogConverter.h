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

/** Asks for the connection to the former system's database and shows the progress of the conversion. */
class DialogConverter final : public QDialog
{
    Q_OBJECT

public:
    explicit DialogConverter(QWidget* parent = nullptr);
    /** Stops a run and waits until its current row is written. */
    ~DialogConverter() override;

    /** During a run it asks first, then closes when the run has ended. */
    void done(int result) override;

public slots:
    void onProgress(int perc, const QString& status);
    void errorString(const QString& err);

private slots:
    void on_btnConvert_clicked();

private:
    /** A message about the first missing input; empty if there is none. */
    [[nodiscard]] QString missing() const;
    void setRunning(bool running);
    void ended();

    std::unique_ptr<Ui::DialogConverter> m_ui;
    ConnectionEdits m_source;
    QPointer<QThread> m_thread;
    QPointer<ZavelConverter> m_converter;
    bool m_closing = false;
};
