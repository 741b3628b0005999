#include "ByHand.h"

#include "support/TestDatabase.h"

#include <QRegularExpression>

#include <cstdlib>

namespace
{
enum Kind { Integer, Amount, Text };

Kind kindOf(Oid type)
{
    switch (type) {
    case 16: // boolean, 't' or 'f'
        return Text;
    case 20:
    case 21:
    case 23:
        return Integer;
    case 700:
    case 701:
    case 1700:
        return Amount;
    default:
        return Text;
    }
}

PGresult* checked(PGresult* result, const PGconn* connection)
{
    const ExecStatusType status = PQresultStatus(result);
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
        qFatal("by hand: %s", PQerrorMessage(connection));
    return result;
}
} // namespace

ByHand::ByHand(const QString& databaseName)
{
    const QString target =
        QString("host=%1 port=%2 user=%3 dbname=%4")
            .arg(TestDatabase::host(), QString::number(TestDatabase::port()), TestDatabase::user(), databaseName);
    m_connection = PQconnectdb(target.toUtf8().constData());
    if (PQstatus(m_connection) != CONNECTION_OK)
        qFatal("by hand: %s", PQerrorMessage(m_connection));
}

ByHand::~ByHand() { PQfinish(m_connection); }

void ByHand::prepare(const char* name, const QString& statement)
{
    static const QRegularExpression placeholder(R"(\?|(?<!:):[a-z]\w*)");
    QString text = statement;
    int number = 0;
    for (int at = text.indexOf(placeholder); at >= 0; at = text.indexOf(placeholder)) {
        const QString found = placeholder.match(text).captured();
        text.replace(at, found.size(), '$' + QString::number(++number));
    }
    const Result result(checked(PQprepare(m_connection, name, text.toUtf8().constData(), 0, nullptr), m_connection),
                        PQclear);
}

ByHand::Result ByHand::execute(const char* name, const std::vector<std::string>& values)
{
    const char* pointers[64] = {};
    for (std::size_t i = 0; i < values.size(); ++i)
        pointers[i] = values[i].empty() ? nullptr : values[i].c_str();
    return {checked(PQexecPrepared(m_connection, name, static_cast<int>(values.size()), pointers, nullptr, nullptr, 0),
                    m_connection),
            PQclear};
}

void ByHand::run(const char* text) { const Result result(checked(PQexec(m_connection, text), m_connection), PQclear); }

std::vector<PlainRow> ByHand::rows(const PGresult* result)
{
    const int columns = PQnfields(result);
    std::vector<Kind> kinds;
    std::size_t counts[3] = {};
    for (int column = 0; column < columns; ++column) {
        kinds.push_back(kindOf(PQftype(result, column)));
        ++counts[kinds.back()];
    }
    std::vector<PlainRow> rows(static_cast<std::size_t>(PQntuples(result)));
    for (std::size_t number = 0; number < rows.size(); ++number) {
        PlainRow& row = rows[number];
        row.integers.reserve(counts[Integer]);
        row.amounts.reserve(counts[Amount]);
        row.texts.reserve(counts[Text]);
        for (int column = 0; column < columns; ++column) {
            const int index = static_cast<int>(number);
            const char* value = PQgetvalue(result, index, column);
            switch (kinds[static_cast<std::size_t>(column)]) {
            case Integer:
                row.integers.push_back(std::atoi(value));
                break;
            case Amount:
                row.amounts.push_back(std::strtod(value, nullptr));
                break;
            case Text:
                row.texts.emplace_back(value, static_cast<std::size_t>(PQgetlength(result, index, column)));
                break;
            }
        }
    }
    return rows;
}
