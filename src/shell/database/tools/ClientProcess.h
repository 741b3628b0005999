#pragma once

#include <QProcess>

#include <memory>

class QTextDecoder;
struct ClientCommand;

/**
 * One run of a PostgreSQL client program: output and errors in one stream, the password in the environment, no prompts,
 * and it ends with this program. Connect its signals, then call run().
 */
class ClientProcess final : public QProcess
{
    Q_OBJECT

public:
    explicit ClientProcess(QObject* parent = nullptr);
    ~ClientProcess() override;

    /** Writes the arguments to the debug log and starts the program. */
    void run(const ClientCommand& command);
    /** The output since the last call. An incomplete multi-byte character is kept for the next call. */
    [[nodiscard]] QString takeOutput();
    /** True if it exited normally with code 0. */
    [[nodiscard]] bool succeeded() const;

protected:
    void setupChildProcess() override;

private:
    std::unique_ptr<QTextDecoder> m_decoder;
};
