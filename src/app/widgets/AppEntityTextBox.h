#pragma once

#include "app/widgets/AppLookupBox.h"

/**
 * A lookup box with the type of its records and its service. A subclass gives the headers and the search:
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

    /** The chosen record; null if none is chosen or the last search found nothing. */
    [[nodiscard]] Entity* selectedItem() const { return static_cast<Entity*>(selectedRecord()); }

    [[nodiscard]] Service* service() const { return m_service; }

private:
    Service* m_service;
};

/** The box for a service that has findAll(text). */
template <class Entity, class Service>
class AppMasterTextBox : public AppEntityTextBox<Entity, Service>
{
public:
    using AppEntityTextBox<Entity, Service>::AppEntityTextBox;

protected:
    QList<KorEntity*> find(const QString& text) override { return this->service()->findAll(text); }
};
