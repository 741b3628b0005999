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
 * One family of the master data as its users meet it; the contract tests walk over all of them. A family that has no
 * words of its own here is known from its page alone, and is not held to any words.
 */
struct MasterFamily
{
    enum Order { ByName, ById, AsStored, Unknown };

    QString service;
    QString table;
    Order order = ByName;
    QString title;
    QStringList headers;
    /** What the page asks for by its name before a delete. */
    QString called;
    /** The captions of the rights to add, edit and delete; one caption where one right covers all. */
    QStringList rights;
    QString lostRow;
    QString grid;
    QString nameField;
    /** What a person types into the form besides code and name. */
    QMap<QString, QString> details;
    /** The same for a row that another workstation writes: columns and values. */
    QString columns;
    QString values;
    std::function<std::unique_ptr<AppListTab>()> makePage;
    std::function<std::unique_ptr<KorDialog>()> makeForm;

    [[nodiscard]] AppMasterMapper* mapper() const;
    /** The statement that lays down a row with this code and name. */
    [[nodiscard]] QString insertStatement(const QString& code, const QString& name) const;
    [[nodiscard]] QString caption(int operation) const { return rights.value(rights.size() == 1 ? 0 : operation); }
    /** Types all the form needs, key by key, over what stands there. */
    void fill(KorDialog* form, const QString& code, const QString& name) const;
};

[[nodiscard]] const QList<MasterFamily>& masterFamilies();
/** Gives a test one row a family, in the column "family", and finds the family of the current row. */
void addFamilyRows();
[[nodiscard]] const MasterFamily& currentFamily();

/** Types over what stands in the form's field of that name. */
void typeInto(QWidget* form, const QString& field, const QString& text);
