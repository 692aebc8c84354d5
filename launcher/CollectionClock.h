#pragma once

#include <QCoreApplication>
#include <QDate>
#include <QVariant>

// The date the collection's dialogs show as "today". A host that needs the same pixels on every
// day (the screenshot run) fixes it through an application property, so that nothing has to be
// exported from the library and normal runs follow the system clock.
namespace CollectionClock {
// Holds a QDate; unset or invalid means the system clock.
constexpr char fixedTodayProperty[] = "twcFixedToday";

inline QDate today()
{
    const QDate fixed =
        QCoreApplication::instance() ? QCoreApplication::instance()->property(fixedTodayProperty).toDate() : QDate();
    return fixed.isValid() ? fixed : QDate::currentDate();
}

inline void fixToday(const QDate& date)
{
    QCoreApplication::instance()->setProperty(fixedTodayProperty, date);
}
} // namespace CollectionClock
