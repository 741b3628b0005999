#pragma once

#include <QList>
#include <QStringList>

#include <functional>
#include <memory>

class QWidget;
class TestDatabase;

/** The right that a key of a page needs. */
struct KeyRight
{
    int key;
    /** The right's number in the service. */
    int right;
    /** True if the right can be granted for the user's own documents only. */
    bool isForOwn = true;
};

/** One kind of documents with its page; the tests of document pages run for all of them. */
struct DocumentFamily
{
    QString name;
    QString service;
    /** The table with the version that a save compares. */
    QString table;
    QList<KeyRight> rights;
    std::function<std::unique_ptr<QWidget>()> makePage;
    /** Inserts a document of today, created by user 1, in the shop of ShopRows.h; the number is 1 or 2. */
    std::function<void(TestDatabase&, int)> lay;
    /** The beginning of the question before a delete. */
    QString question;
    /**
     * The beginning of the message about a document that no longer exists, when editing and deleting; empty if the page
     * has no such key.
     */
    QString lost;
    QString lostAtDelete;
    /** The name of a text box of the form; empty if the page opens forms of other families. */
    const char* field = "";
    /** The error of a save when another user saved first, up to the table's name. */
    QString refused = QString();
};

[[nodiscard]] const QList<DocumentFamily>& documentFamilies();
