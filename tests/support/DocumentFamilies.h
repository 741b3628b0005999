#pragma once

#include <QList>
#include <QStringList>

#include <functional>
#include <memory>

class QWidget;
class TestDatabase;

/** What a key of a page asks for. */
struct KeyRight
{
    int key;
    /** As the service numbers its rights. */
    int right;
    /** Whether the right may be given for what a person has made himself. */
    bool isForOwn = true;
};

/** One list of documents as its users meet it; the contract of document pages walks over all of them. */
struct DocumentFamily
{
    QString name;
    QString service;
    /** Holds the row whose version a save compares. */
    QString table;
    QList<KeyRight> rights;
    std::function<std::unique_ptr<QWidget>()> makePage;
    /** Lays one of them down, of today and made by user 1, in the shop of ShopRows.h; the number is 1 or 2. */
    std::function<void(TestDatabase&, int)> lay;
    /** What the page asks before a delete, as it begins. */
    QString question;
    /** What is told of a document that has gone, at an edit and at a delete, as they begin; empty for no such key. */
    QString lost;
    QString lostAtDelete;
    /** A box of the form where a person types; empty where the page opens forms of other families. */
    const char* field = "";
    /** What a save is told with that somebody else was faster than, before the table's name. */
    QString refused = QString();
};

[[nodiscard]] const QList<DocumentFamily>& documentFamilies();
