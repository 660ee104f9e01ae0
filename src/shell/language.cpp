#include "shell/language.h"

#include <QCoreApplication>
#include <QTranslator>

QString translationTable(LANGUAGE language)
{
    return language == UI_ZH ? QStringLiteral(":/image/tr_zh.qm") : QStringLiteral(":/image/tr_en.qm");
}

void installFurtherTables(LANGUAGE language)
{
    // Their sources are English. The later one is asked first.
    for (const char* name : {"qtbase_zh_CN", "own_zh"}) {
        const QString table = QLatin1String(name);
        delete qApp->findChild<QTranslator*>(table);
        if (language != UI_ZH)
            continue;
        auto* translator = new QTranslator(qApp);
        translator->setObjectName(table);
        if (translator->load(QStringLiteral(":/image/%1.qm").arg(table)))
            QCoreApplication::installTranslator(translator);
    }
}
