#pragma once

#include <QString>

/// Whether this is what the offscreen platform says at every window and every control on a scene.
inline bool isSizeHintMessage(const QString& message)
{
    return message == QLatin1String("This plugin does not support propagateSizeHints()");
}

/// Drops that message, and hands on all others.
inline void dropSizeHintMessages()
{
    static QtMessageHandler next = nullptr;
    next =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& message) {
            if (!isSizeHintMessage(message))
                next(type, context, message);
        });
}
