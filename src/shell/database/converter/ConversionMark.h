#pragma once

#include <QCoreApplication>
#include <QString>

class BusinessConfiguration;

/**
 * A row in the shared settings that exists until a conversion is complete. If it exists while no conversion runs, one
 * was interrupted.
 */
class ConversionMark
{
    Q_DECLARE_TR_FUNCTIONS(ConversionMark)

public:
    explicit ConversionMark(BusinessConfiguration* configuration) : m_configuration(configuration) {}

    /** Takes a lock against other conversions of this database; it is held until the connection ends. */
    [[nodiscard]] static bool claim();
    /** True if the current connection still holds the lock of claim(). */
    [[nodiscard]] static bool isClaimed();

    [[nodiscard]] bool isSet() const;
    /** Does nothing if the mark is already set. */
    bool set(const QString& source);
    bool remove();
    /** The message about an interrupted conversion; empty if there is none. */
    [[nodiscard]] QString explanation() const;

private:
    BusinessConfiguration* m_configuration;
};
