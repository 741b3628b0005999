#pragma once

#include <QByteArray>
#include <QString>

#include <libpq-fe.h>

#include <memory>
#include <string>
#include <vector>

/** A row as a program without layers would store it: numbers as numbers, the rest as text. */
struct PlainRow
{
    std::vector<int> integers;
    std::vector<double> amounts;
    std::vector<std::string> texts;
};

/**
 * The baseline: libpq, used for speed only. Every statement is prepared once and executed in one round trip; values are
 * sent and read as text.
 */
class ByHand
{
public:
    using Result = std::unique_ptr<PGresult, decltype(&PQclear)>;

    /** Connects to the same database as the program. */
    explicit ByHand(const QString& databaseName);
    ~ByHand();
    Q_DISABLE_COPY(ByHand)

    /** Prepares a statement of the program; its placeholders become $1, $2 and so on in their order. */
    void prepare(const char* name, const QString& statement);
    Result execute(const char* name, const std::vector<std::string>& values = {});
    /** Sends a statement without values, such as BEGIN or COMMIT. */
    void run(const char* text);
    /** Reads the whole result into plain rows. */
    [[nodiscard]] static std::vector<PlainRow> rows(const PGresult* result);

private:
    PGconn* m_connection;
};
