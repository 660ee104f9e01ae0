#include "codegen/section.h"

#include <QRegExp>

namespace {
QRegExp callExpression(const CallPattern& call)
{
    return QRegExp(QStringLiteral(R"(%1\((%2)\);{,1})")
                       .arg(QLatin1String(call.function), QLatin1String(call.arguments)));
}

QString callText(const CallPattern& call, const QString& arguments)
{
    return QLatin1String(call.function) + QLatin1Char('(') + arguments + QStringLiteral(");");
}
} // namespace

bool resolveSection(QString& text, const char* name, bool keep, const BodyEdit& edit, SectionEnd end)
{
    const QRegExp section(
        QStringLiteral(R"(\[#%1\]\n(.+)\[/#%1\]\n+)").arg(QRegExp::escape(QLatin1String(name))));
    if (section.indexIn(text) < 0)
        return false;
    QString body;
    if (keep) {
        body = section.cap(1);
        if (end == SectionEnd::EmptyLine)
            body += QLatin1Char('\n');
        if (edit && !edit(body))
            return false;
    }
    text.replace(section, body);
    return true;
}

bool hasCall(const QString& text, const CallPattern& call)
{
    return callExpression(call).indexIn(text) >= 0;
}

bool rewriteCall(QString& text, const CallPattern& call, const QString& arguments)
{
    return rewriteCall(text, text, call, arguments);
}

bool rewriteCall(const QString& searched, QString& edited, const CallPattern& call, const QString& arguments)
{
    const QRegExp expression = callExpression(call);
    if (expression.indexIn(searched) < 0)
        return false;
    edited.replace(expression, callText(call, arguments));
    return true;
}

bool rewriteLastCall(QString& text, const CallPattern& call, const QString& arguments)
{
    const QRegExp expression = callExpression(call);
    const int last = expression.lastIndexIn(text);
    if (last < 0)
        return false;
    text = text.left(last) + text.mid(last).replace(expression, callText(call, arguments));
    return true;
}

bool hasPattern(const QString& text, const QString& pattern)
{
    return QRegExp(pattern).indexIn(text) >= 0;
}

bool replacePattern(QString& text, const QString& pattern, const QString& replacement)
{
    const QRegExp expression(pattern);
    if (expression.indexIn(text) < 0)
        return false;
    text.replace(expression, replacement);
    return true;
}
