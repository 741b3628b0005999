#include "shell/window/InterfaceLanguage.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QDir>
#include <QIcon>
#include <QLocale>
#include <QMenu>

InterfaceLanguage::InterfaceLanguage(const QString& languagePath, QObject* parent)
    : QObject(parent), m_languagePath(languagePath)
{}

InterfaceLanguage::~InterfaceLanguage() = default;

QString InterfaceLanguage::systemCode()
{
    const QString name = QLocale::system().name();
    return name.left(name.lastIndexOf('_'));
}

QString InterfaceLanguage::codeOf(const QString& catalogue)
{
    const QString base = catalogue.left(catalogue.lastIndexOf('.'));
    return base.mid(base.indexOf('_') + 1);
}

void InterfaceLanguage::fillMenu(QMenu* menu)
{
    auto* group = new QActionGroup(this);
    group->setExclusive(true);
    connect(group, &QActionGroup::triggered, this, &InterfaceLanguage::chosen);

    const QStringList catalogues = QDir(m_languagePath).entryList({"TranslationExample_*.qm"});
    for (const QString& catalogue : catalogues) {
        const QString code = codeOf(catalogue);
        const QString name = QLocale::languageToString(QLocale(code).language());
        auto* action = new QAction(QIcon(QString("%1/%2.png").arg(m_languagePath, code)), name, this);
        action->setCheckable(true);
        action->setData(code);
        menu->addAction(action);
        group->addAction(action);
        action->setChecked(code == systemCode());
    }
}

void InterfaceLanguage::load(const QString& code)
{
    if (code == m_currentLanguage)
        return;
    m_currentLanguage = code;
    const QLocale locale(code);
    QLocale::setDefault(locale);
    switchTranslator(m_translator, QString("TranslationExample_%1.qm").arg(code));
    switchTranslator(m_qtTranslator, QString("qt_%1.qm").arg(code));
    emit switched(code);
    emit loaded(QLocale::languageToString(locale.language()));
}

void InterfaceLanguage::switchTranslator(QTranslator& translator, const QString& fileName)
{
    QCoreApplication::removeTranslator(&translator);
    if (translator.load(fileName, m_languagePath))
        QCoreApplication::installTranslator(&translator);
}
