#pragma once

#include "app/context/EntityPool.h"

#include <QDialog>

#include <memory>

class KorEntityModel;
class KorSortFilterProxyModel;

namespace Ui
{
class DialogFilterJenisItem;
}

/** Lets the user choose item types. */
class DialogFilterJenisItem final : public QDialog
{
    Q_OBJECT

public:
    /** The codes, separated by commas, are selected at first. */
    explicit DialogFilterJenisItem(const QString& codes, QWidget* parent = nullptr);
    ~DialogFilterJenisItem() override;

    /** The codes of the selected rows in the order of the grid, separated by commas. */
    [[nodiscard]] QString selectedCodes() const;

private:
    void select(const QStringList& codes);

    std::unique_ptr<Ui::DialogFilterJenisItem> m_ui;
    EntityPool m_types;
    KorEntityModel* m_model = nullptr;
    KorSortFilterProxyModel* m_proxy = nullptr;
};
