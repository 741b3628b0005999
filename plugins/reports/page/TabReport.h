#pragma once

#include "kor/widgets/KorTab.h"
#include "reports/engine/ReportRun.h"

#include <functional>
#include <memory>

class QLabel;
class QListWidget;
class QPagedPaintDevice;
class QProgressBar;
class QPushButton;
class QTableView;
class QTimer;
class ReportModel;
class ReportPlot;
class ReportQuestions;

/** The page of one subject: the list of its reports, the parameters of the selected one, and its result. */
class TabReport final : public KorTab
{
    Q_OBJECT

public:
    /** Returns the connection; called at each run, since the program can change to another database. */
    using Connection = std::function<ReportConnection()>;

    TabReport(ReportSubject subject, Connection connection, QString dateFormat, QWidget* parent = nullptr);
    ~TabReport() override;

    /** Selects the report with this id without running it. */
    void choose(const QString& reportId);
    [[nodiscard]] const ReportTable& table() const;
    [[nodiscard]] bool isRunning() const { return m_run != nullptr; }

    // What the buttons do after a file was chosen; false if writing failed.
    [[nodiscard]] bool saveCsv(const QString& fileName);
    [[nodiscard]] bool savePdf(const QString& fileName);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build();
    void retranslate();
    void showReport(int index);
    void loadChoices();
    void runReport();
    void cancelRun();
    void endRun();
    void showAnswer(bool cutOff);
    /** Takes a function, so that the text can be translated again after a change of the language. */
    void showNote(const std::function<QString()>& words, bool isError = false);
    void tellProgress();
    void updateButtons();
    [[nodiscard]] QString fileFor(const QString& title, const QString& suffix, const QString& filter);
    void tellSaved(bool good, const QString& fileName);
    void preview();
    void print();
    bool paintOn(QPagedPaintDevice* device);

    ReportSubject m_subject;
    Connection m_connection;
    QString m_dateFormat;
    int m_current = -1;
    QString m_company;
    std::unique_ptr<ReportRun> m_choices;
    std::unique_ptr<ReportRun> m_run;
    // The parameters of the shown result, for the paper.
    QStringList m_asked;
    qint64 m_startedAt = 0;
    int m_rowsSoFar = 0;

    QListWidget* m_list;
    QLabel* m_title;
    QLabel* m_about;
    ReportQuestions* m_questions;
    QPushButton* m_show;
    QPushButton* m_cancel;
    QPushButton* m_preview;
    QPushButton* m_print;
    QPushButton* m_pdf;
    QPushButton* m_csv;
    QProgressBar* m_progress;
    QLabel* m_note;
    std::function<QString()> m_noteWords;
    ReportPlot* m_plot;
    QTableView* m_grid;
    ReportModel* m_model;
    QTimer* m_ticker;
};
