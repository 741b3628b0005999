#pragma once

#include <QProcess>

#include <memory>

class QTextDecoder;
struct ClientCommand;

/**
 * One run of a PostgreSQL program: output and errors in one stream, the password in the environment, nobody to be
 * asked for anything, and an end together with this program. Connect its signals, then call run().
 */
class ClientProcess final : public QProcess
{
    Q_OBJECT

public:
    explicit ClientProcess(QObject* parent = nullptr);
    ~ClientProcess() override;

    /** Writes the arguments to the debug log and starts the program. */
    void run(const ClientCommand& command);
    /** What the program has said since the last call; a letter that has arrived by half waits for the rest. */
    [[nodiscard]] QString takeOutput();
    /** Ended by itself, and with success. */
    [[nodiscard]] bool succeeded() const;

protected:
    void setupChildProcess() override;

private:
    std::unique_ptr<QTextDecoder> m_decoder;
};
