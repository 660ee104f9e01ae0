// Linked into every test program: what Qt only tells in a message must not pass unseen.
#include "tools/offscreen.h"

#include <QString>

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>

namespace {

QtMessageHandler next = nullptr;

void strict(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (isSizeHintMessage(message))
        return;
    // A connection by a name that does not exist is a message to Qt and no more. Here it ends the program.
    const bool unconnected = message.startsWith(QLatin1String("QObject::connect:"));
    if (next)
        next(unconnected ? QtFatalMsg : type, context, message);
    else
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
    if (unconnected)
        std::abort();
}

} // namespace

// QTest puts a handler of its own in the place of any other and hands nothing on. So this function stands in
// front of Qt's, for QTest's calls too: whatever handler is installed comes behind the strict one.
QtMessageHandler qInstallMessageHandler(QtMessageHandler handler)
{
    const char* const name = "_Z22qInstallMessageHandlerPFv9QtMsgTypeRK18QMessageLogContextRK7QStringE";
    static const auto ofQt = reinterpret_cast<decltype(&qInstallMessageHandler)>(dlsym(RTLD_NEXT, name));
    if (!ofQt)
        qFatal("Qt has no qInstallMessageHandler");
    ofQt(strict);
    const QtMessageHandler before = next;
    next = handler;
    return before;
}

static const QtMessageHandler installedAtLoad = qInstallMessageHandler(nullptr);
