#pragma once

#include <QObject>
#include <QString>

/// Gives a widget, action or menu its member name as objectName, by which tests and assistive tools find it,
/// and hands it back.
template <class Object>
Object* named(const QString& memberName, Object* object)
{
    object->setObjectName(memberName);
    return object;
}

template <class Object>
Object* named(const char* memberName, Object* object)
{
    return named(QString::fromLatin1(memberName), object);
}
