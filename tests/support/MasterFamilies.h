#pragma once

#include <QMap>
#include <QStringList>

#include <functional>
#include <memory>

class AppListTab;
class AppMasterMapper;
class KorDialog;
class QWidget;

/**
 * One kind of master data with its page and form; the tests of master data run for all of them. A family without an
 * entry in the list is found through its page, and its texts are not checked.
 */
struct MasterFamily
{
    enum Order { ByName, ById, AsStored, Unknown };

    QString service;
    QString table;
    Order order = ByName;
    QString title;
    QStringList headers;
    /** How the question before a delete names a record. */
    QString called;
    /** The captions of the rights to add, edit and delete; only one if one right covers all. */
    QStringList rights;
    QString lostRow;
    QString grid;
    QString nameField;
    /** Inputs for the form besides code and name. */
    QMap<QString, QString> details;
    /** The same for a row that another workstation inserts: columns and values. */
    QString columns;
    QString values;
    std::function<std::unique_ptr<AppListTab>()> makePage;
    std::function<std::unique_ptr<KorDialog>()> makeForm;

    [[nodiscard]] AppMasterMapper* mapper() const;
    /** The statement that inserts a row with this code and name. */
    [[nodiscard]] QString insertStatement(const QString& code, const QString& name) const;
    [[nodiscard]] QString caption(int operation) const { return rights.value(rights.size() == 1 ? 0 : operation); }
    /** Types all required inputs into the form, replacing the old ones. */
    void fill(KorDialog* form, const QString& code, const QString& name) const;
};

[[nodiscard]] const QList<MasterFamily>& masterFamilies();
/** Adds one test row per family, in the column "family", and finds the family of the current row. */
void addFamilyRows();
[[nodiscard]] const MasterFamily& currentFamily();
