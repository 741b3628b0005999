#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class DialogAbout;
}

/** What the program is, in which version, and whose work it stands on. */
class DialogAbout final : public QDialog
{
    Q_OBJECT

public:
    explicit DialogAbout(QWidget* parent = nullptr);
    ~DialogAbout() override;

private:
    std::unique_ptr<Ui::DialogAbout> m_ui;
};
