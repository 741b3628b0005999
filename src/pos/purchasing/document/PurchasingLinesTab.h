#pragma once

#include "app/widgets/AppLinesTab.h"
#include "pos/purchasing/document/EntityPurchasingLine.h"

/** The page of lines in the form of a purchasing document. */
class PurchasingLinesTab : public AppLinesTab
{
    Q_OBJECT

public:
    using AppLinesTab::AppLinesTab;

protected:
    [[nodiscard]] int subjectOf(const KorEntity& line) const override
    {
        return static_cast<const EntityPurchasingLine&>(line).itemId();
    }
    [[nodiscard]] QString nameOf(const KorEntity& line) const override
    {
        return static_cast<const EntityPurchasingLine&>(line).getItem()->getNama();
    }
    void takeOver(KorEntity* present, const KorEntity& entered) override
    {
        static_cast<EntityPurchasingLine*>(present)->takeFigures(static_cast<const EntityPurchasingLine&>(entered));
    }
    /** Narrow, so that all columns fit beside the amounts: code, name, quantity, unit, price, discount. */
    [[nodiscard]] QList<int> columnWidths() const override { return {72, 150, 48, 82, 144, 128}; }
    [[nodiscard]] QString updateQuestion() const override
    {
        return tr("This item: %1 is already in the list. Do you want to update it with this data?");
    }
};

/** A page of lines made from the classes of one kind of document. */
template <class Line, class Model, class Dialog, class Base = PurchasingLinesTab>
class PurchasingLinesOf : public Base
{
public:
    using Base::Base;

protected:
    KorEntity* createLine() override { return new Line; }
    KorEntityModel* createModel(const QList<KorEntity*>& lines) override { return new Model(lines, this); }
    std::unique_ptr<KorDialog> createDialog(EntityPool& read, const KorEntity&) override
    {
        return std::make_unique<Dialog>(read, this);
    }
};
