#pragma once

#include "app/widgets/AppLookupBox.h"

/**
 * A lookup box that knows its records' type and its service. A family's box names the headers and says how to find:
 *
 *     class SupplierTextBox final : public AppEntityTextBox<EntitySupplier, BusinessSupplier>
 *     {
 *         Q_OBJECT
 *     public:
 *         SupplierTextBox(QLineEdit* editor, BusinessSupplier* service)
 *             : AppEntityTextBox(editor, service, {tr("Code"), tr("Name")}) {}
 *     protected:
 *         QList<KorEntity*> find(const QString& text) override { return service()->findByFilter(text); }
 *     };
 */
template <class Entity, class Service>
class AppEntityTextBox : public AppLookupBox
{
public:
    AppEntityTextBox(QLineEdit* editor, Service* service, const QStringList& headers)
        : AppLookupBox(editor, service, headers), m_service(service)
    {}

    /** The chosen record; null without a choice, and when the last search found nothing. */
    [[nodiscard]] Entity* selectedItem() const { return static_cast<Entity*>(selectedRecord()); }

    [[nodiscard]] Service* service() const { return m_service; }

private:
    Service* m_service;
};

/** The box of a family whose service offers findAll(text). */
template <class Entity, class Service>
class AppMasterTextBox : public AppEntityTextBox<Entity, Service>
{
public:
    using AppEntityTextBox<Entity, Service>::AppEntityTextBox;

protected:
    QList<KorEntity*> find(const QString& text) override { return this->service()->findAll(text); }
};
