#pragma once

#include <QObject>
#include <QTranslator>

class QAction;
class QMenu;

/** The languages that the folder of catalogues offers, and the one in use. */
class InterfaceLanguage final : public QObject
{
    Q_OBJECT

public:
    InterfaceLanguage(const QString& languagePath, QObject* parent);
    ~InterfaceLanguage() override;

    /** One checkable entry a catalogue; the system's language is checked, though not loaded. */
    void fillMenu(QMenu* menu);
    /** Switches the translators; does nothing when the language is in use already. */
    void load(const QString& code);

    /** The system's language without its country: "en" of "en_US". */
    [[nodiscard]] static QString systemCode();
    /** The code in a catalogue's name: "id" of "TranslationExample_id.qm". */
    [[nodiscard]] static QString codeOf(const QString& catalogue);

signals:
    /** An entry of the menu was chosen. */
    void chosen(QAction* action);
    void loaded(const QString& languageName);
    void switched(const QString& code);

private:
    void switchTranslator(QTranslator& translator, const QString& fileName);

    QString m_languagePath;
    QString m_currentLanguage;
    QTranslator m_translator;
    QTranslator m_qtTranslator;
};
