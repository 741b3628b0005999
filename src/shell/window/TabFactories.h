#pragma once

#include <QMap>
#include <QString>

#include <functional>

class KorTab;

/** Class names of the pages that the main window can open, each with what makes a new one. */
using TabFactories = QMap<QString, std::function<KorTab*()>>;

[[nodiscard]] TabFactories allTabFactories();
