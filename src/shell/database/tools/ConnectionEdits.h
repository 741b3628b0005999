#pragma once

#include "app/context/ConnectionSettings.h"

class QLineEdit;

/** The five boxes of one connection; several forms have them under different object names. */
struct ConnectionEdits
{
    QLineEdit* host;
    QLineEdit* database;
    QLineEdit* user;
    QLineEdit* password;
    QLineEdit* port;

    void show(const ConnectionSettings& settings) const;
    /** The given settings with these five values replaced by those of the boxes. */
    [[nodiscard]] ConnectionSettings read(ConnectionSettings settings = {}) const;
};
