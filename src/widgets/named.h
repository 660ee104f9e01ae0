#pragma once

#include <QLatin1String>
#include <QObject>

/// Gives a widget, action or menu its member name as objectName, by which tests and assistive tools find it,
/// and hands it back.
template <class Object>
Object* named(const char* memberName, Object* object)
{
    object->setObjectName(QLatin1String(memberName));
    return object;
}
