#pragma once

#include <QByteArray>
#include <QString>

#include <libpq-fe.h>

#include <memory>
#include <string>
#include <vector>

/** A row as a program without any layers would keep it: plain fields, numbers as numbers, the rest as text. */
struct PlainRow
{
    std::vector<int> integers;
    std::vector<double> amounts;
    std::vector<std::string> texts;
};

/**
 * The yardstick: libpq as an engineer would use it who wants nothing but speed. Every statement is prepared once and
 * executed with one round trip; values go out and come back as text.
 */
class ByHand
{
public:
    using Result = std::unique_ptr<PGresult, decltype(&PQclear)>;

    /** Connects to the same database as the program. */
    explicit ByHand(const QString& databaseName);
    ~ByHand();
    Q_DISABLE_COPY(ByHand)

    /** The statement in the program's words; its placeholders become $1, $2 and so on in their order. */
    void prepare(const char* name, const QString& statement);
    Result execute(const char* name, const std::vector<std::string>& values = {});
    /** Sends a text without values, as BEGIN and COMMIT. */
    void run(const char* text);
    /** Reads the whole result into plain rows. */
    [[nodiscard]] static std::vector<PlainRow> rows(const PGresult* result);

private:
    PGconn* m_connection;
};
