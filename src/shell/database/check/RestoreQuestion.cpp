#include "shell/database/check/RestoreQuestion.h"

#include <QDateTime>
#include <QMessageBox>

QString RestoreQuestion::countingTables()
{
    return "SELECT count(*) FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace "
           "WHERE c.relkind IN ('r', 'p') AND n.nspname !~ '^(pg_|information_schema$)'";
}

QString RestoreQuestion::asideName(const QString& database)
{
    // The server truncates longer names silently.
    constexpr int longest = 63;
    const QString time = QDateTime::currentDateTime().toString(" yyyy-MM-dd hh.mm.ss");
    QString name = database;
    while ((name + time).toUtf8().size() > longest)
        name.chop(1);
    return name + time;
}

bool RestoreQuestion::ask(QWidget* parent, const QString& database, int tables, const QString& aside)
{
    return QMessageBox::question(parent, tr("Question"),
                                 tr("The database %1 holds %2 tables already. A backup is not restored into them: it "
                                    "would be mixed into what they hold, and spoil their numbering.\n\nDo you want to "
                                    "replace the database? The backup goes into a new database %1, and the one of now "
                                    "stays on the server under the name %3. Nobody may work with it meanwhile.")
                                     .arg(database, QString::number(tables), aside),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

QString RestoreQuestion::notReadable(const QString& file)
{
    return tr("%1 can not be read as a backup. Nothing was restored, and the database is as it was.").arg(file);
}

QString RestoreQuestion::notReplaced(const QString& database)
{
    return tr("The database %1 was not replaced: it is as it was, and nothing was restored. While anybody works with "
              "it, this program too, it can not be replaced. Restore into a new database instead, and make that one "
              "the active one afterwards.")
        .arg(database);
}

QString RestoreQuestion::kept(const QString& aside)
{
    return tr("The former database is kept under the name %1.").arg(aside);
}
