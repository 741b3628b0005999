#pragma once

#include <QDate>
#include <QObject>

#include <memory>

class FoundRows;
class KorEntityModel;
class QShortcut;
class QTimer;
class QWidget;

/**
 * Reads the rest of a long list piece by piece while its page can be used. Escape stops it, and above a hundred
 * thousand rows it asks whether to go on.
 */
class RestReader final : public QObject
{
    Q_OBJECT

public:
    /** The page is the parent; Escape works while it has the focus. */
    explicit RestReader(QWidget* page);

    /** Ends what it was reading; the model shows the rows and is borrowed until the end of this list. */
    void begin(std::shared_ptr<FoundRows> rows, KorEntityModel* model);
    void end();
    [[nodiscard]] bool isReading() const;
    /** The date of the last row if the rows behind it were left out, otherwise invalid. */
    [[nodiscard]] QDate leftOutBefore() const { return m_leftOutBefore; }

signals:
    /** There are more rows, or reading has ended. */
    void advanced();
    /** The service has the reason. */
    void failed();

private:
    void readOn();
    void stop();
    [[nodiscard]] bool mayGoOn();

    QWidget* m_page;
    QTimer* m_timer;
    QShortcut* m_escape;
    std::shared_ptr<FoundRows> m_rows;
    KorEntityModel* m_model = nullptr;
    QDate m_leftOutBefore;
    bool m_asked = false;
};
