#pragma once

#include "app/context/ConnectionSettings.h"

class QLineEdit;

/** The five boxes of one connection, which several forms have under names of their own. */
struct ConnectionEdits
{
    QLineEdit* host;
    QLineEdit* database;
    QLineEdit* user;
    QLineEdit* password;
    QLineEdit* port;

    void show(const ConnectionSettings& settings) const;
    /** What the boxes hold, in the place of the given settings' own five values. */
    [[nodiscard]] ConnectionSettings read(ConnectionSettings settings = {}) const;
};
