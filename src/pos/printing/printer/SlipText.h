#pragma once

#include <QString>

/** Builds the text of a slip line by line, for paper of a given width. A line ends with one line feed. */
class SlipText
{
public:
    explicit SlipText(int columns) : m_columns(columns) {}

    SlipText& line(const QString& text = QString());
    /** Centred on the paper; unchanged if there is no width or the text is wider. */
    SlipText& centred(const QString& text) { return line(centre(text)); }
    SlipText& separator();
    SlipText& lineFeeds(int count);
    /** Adds the text without a line feed. */
    SlipText& append(const QString& text);

    [[nodiscard]] const QString& text() const { return m_text; }
    [[nodiscard]] int columns() const { return m_columns; }
    [[nodiscard]] QString centre(const QString& text) const;
    // Columns: padded to the width, never cut.
    [[nodiscard]] static QString left(const QString& text, int width);
    [[nodiscard]] static QString right(const QString& text, int width);

private:
    int m_columns;
    QString m_text;
};
