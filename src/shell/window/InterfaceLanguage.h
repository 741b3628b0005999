#pragma once

#include <QObject>
#include <QTranslator>

class QAction;
class QMenu;

/** The languages for which there is a translation file, and the current one. */
class InterfaceLanguage final : public QObject
{
    Q_OBJECT

public:
    InterfaceLanguage(const QString& languagePath, QObject* parent);
    ~InterfaceLanguage() override;

    /** Adds one checkable entry per translation file. The system's language is checked, but not loaded. */
    void fillMenu(QMenu* menu);
    /** Switches the translators; does nothing if the language is already in use. */
    void load(const QString& code);

    /** The system's language without its country: "en" of "en_US". */
    [[nodiscard]] static QString systemCode();
    /** The code in the name of a translation file: "id" of "TranslationExample_id.qm". */
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
