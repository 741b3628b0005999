#pragma once

#include "zavel/install/ZavelInstaller.h"

#include <functional>

/** Runs the installer on the open database on this thread and collects its messages. */
struct InstallerRun
{
    explicit InstallerRun(int type, const std::function<void(ZavelInstaller&)>& prepare = {})
    {
        ZavelInstaller installer;
        installer.setType(type);
        if (prepare)
            prepare(installer);
        QObject::connect(&installer, &KorInstaller::onProgress, [this](int percent, const QString& status) {
            lines.append(QString("[%1%] %2").arg(percent).arg(status));
        });
        QObject::connect(&installer, &KorInstaller::error, [this](const QString& text) { errors.append(text); });
        QObject::connect(&installer, &KorInstaller::finished, [this] { ++ends; });
        installer.process();
        failures = installer.failures();
    }

    /** The lines as the wizard's pages show them. */
    QStringList lines;
    QStringList failures;
    QStringList errors;
    int ends = 0;
};
