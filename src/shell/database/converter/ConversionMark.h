#pragma once

#include <QCoreApplication>
#include <QString>

class BusinessConfiguration;

/**
 * The row of the shared settings that stands as long as a conversion has not come to its end: whoever finds it while no
 * conversion runs knows that one was broken off.
 */
class ConversionMark
{
    Q_DECLARE_TR_FUNCTIONS(ConversionMark)

public:
    explicit ConversionMark(BusinessConfiguration* configuration) : m_configuration(configuration) {}

    /** Keeps every other conversion of this database away until the connection ends. */
    [[nodiscard]] static bool claim();
    /** Whether the connection that has claimed still stands. */
    [[nodiscard]] static bool isClaimed();

    [[nodiscard]] bool isSet() const;
    /** Leaves a mark that stands already as it is. */
    bool set(const QString& source);
    bool remove();
    /** What a person should know of a conversion that was broken off; empty where none was. */
    [[nodiscard]] QString explanation() const;

private:
    BusinessConfiguration* m_configuration;
};
