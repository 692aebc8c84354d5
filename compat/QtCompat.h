#pragma once

// The few places where Qt 5.15 and Qt 6 accept no common form. Everything else in the sources is
// written in the form both accept (Qt::SkipEmptyParts, QFontMetrics::horizontalAdvance, QStringView,
// QRegExp from Qt 6's Core5Compat); this header is the only place that asks for the version.

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QDropEvent>
#include <QEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QMetaType>
#include <QMouseEvent>
#include <QObject>
#include <QPixmap>
#include <QPoint>
#include <QRegExp>
#include <QSortFilterProxyModel>
#include <QWidget>
#include <QWindow>
#include <QtGlobal>

// Slots that Qt 5 connects by name (setupUi's auto-connection) to a signal that Qt 6 no longer has,
// QComboBox::currentIndexChanged(QString). On Qt 5 they are slots; on Qt 6 plain members, so that
// the auto-connection does not look for the missing signal, and QtCompat::autoConnectIndexText
// connects them instead.
#if QT_VERSION_MAJOR < 6
#define TWC_INDEX_TEXT_SLOTS Q_SLOTS
#else
#define TWC_INDEX_TEXT_SLOTS
#endif

namespace QtCompat {

#if QT_VERSION_MAJOR < 6
using EnterEvent = QEvent;
#else
using EnterEvent = QEnterEvent;
#endif

// Qt 6 keeps the fractions of a font's line metrics from its tables; Qt 5 took FreeType's, rounded
// up to whole pixels.
constexpr bool fontLineMetricsKeepFractions = QT_VERSION_MAJOR >= 6;

// Before the application exists: one device pixel per pixel, whatever the screen reports (Qt 6
// always scales, unless its environment says otherwise). QT_SCALE_FACTOR still applies.
inline void disableHighDpiScaling()
{
#if QT_VERSION_MAJOR < 6
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
#else
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
#endif
}

// Before the application exists: icons drawn from as many device pixels as the screen has (always
// so on Qt 6).
inline void useHighDpiPixmaps(bool on)
{
#if QT_VERSION_MAJOR < 6
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, on);
#else
    Q_UNUSED(on)
#endif
}

inline QPoint position(const QMouseEvent* event)
{
#if QT_VERSION_MAJOR < 6
    return event->pos();
#else
    return event->position().toPoint();
#endif
}

inline QPoint globalPosition(const QMouseEvent* event)
{
#if QT_VERSION_MAJOR < 6
    return event->globalPos();
#else
    return event->globalPosition().toPoint();
#endif
}

inline QPoint position(const QDropEvent* event)
{
#if QT_VERSION_MAJOR < 6
    return event->pos();
#else
    return event->position().toPoint();
#endif
}

// The label's pixmap; a null pixmap when it shows none.
inline QPixmap pixmap(const QLabel* label)
{
#if QT_VERSION_MAJOR < 6
    return label->pixmap(Qt::ReturnByValue);
#else
    return label->pixmap();
#endif
}

// The icon's pixmap for a window (for the application's screens without one) at size.
inline QPixmap pixmap(const QIcon& icon, QWindow* window, const QSize& size)
{
#if QT_VERSION_MAJOR < 6
    return icon.pixmap(window, size);
#else
    return icon.pixmap(size, window ? window->devicePixelRatio() : qApp->devicePixelRatio());
#endif
}

inline QList<QWidget*> associatedWidgets(const QAction* action)
{
#if QT_VERSION_MAJOR < 6
    return action->associatedWidgets();
#else
    QList<QWidget*> widgets;
    for (QObject* object : action->associatedObjects())
        if (auto* widget = qobject_cast<QWidget*>(object))
            widgets.append(widget);
    return widgets;
#endif
}

// The id of the type registered under name; QMetaType::UnknownType for none.
inline int metaTypeId(const char* name)
{
#if QT_VERSION_MAJOR < 6
    return QMetaType::type(name);
#else
    return QMetaType::fromName(name).id();
#endif
}

// Calls slot with the new current item's text whenever the box's current index changes, as
// Qt 5's QComboBox::currentIndexChanged(const QString&) does.
template<class Receiver>
QMetaObject::Connection connectIndexText(QComboBox* box, Receiver* receiver, void (Receiver::*slot)(const QString&))
{
#if QT_VERSION_MAJOR < 6
    return QObject::connect(box, QOverload<const QString&>::of(&QComboBox::currentIndexChanged), receiver, slot);
#else
    return QObject::connect(box, &QComboBox::currentIndexChanged, receiver,
                            [box, receiver, slot](int index) { (receiver->*slot)(box->itemText(index)); });
#endif
}

// For a slot declared under TWC_INDEX_TEXT_SLOTS, right after setupUi: Qt 5 has connected it by
// its name already, Qt 6 gets the same connection here.
template<class Receiver>
void autoConnectIndexText(QComboBox* box, Receiver* receiver, void (Receiver::*slot)(const QString&))
{
#if QT_VERSION_MAJOR < 6
    Q_UNUSED(box)
    Q_UNUSED(receiver)
    Q_UNUSED(slot)
#else
    connectIndexText(box, receiver, slot);
#endif
}

#if QT_VERSION_MAJOR < 6
using RegExpFilterProxyModel = QSortFilterProxyModel;
#else
// Qt 6's proxy model filters with QRegularExpression only; this one keeps Qt 5's
// setFilterRegExp(QRegExp): with an empty pattern every row passes, otherwise a row passes when
// the pattern is found in the filter role's text of the key column (of any column for -1).
class RegExpFilterProxyModel : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setFilterRegExp(const QRegExp& regExp)
    {
        m_regExp = regExp;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override
    {
        if (m_regExp.isEmpty())
            return true;
        const int key = filterKeyColumn();
        const int columns = sourceModel()->columnCount(sourceParent);
        for (int column = key < 0 ? 0 : key; column < (key < 0 ? columns : key + 1); ++column) {
            const QString text = sourceModel()->index(sourceRow, column, sourceParent).data(filterRole()).toString();
            if (m_regExp.indexIn(text) != -1)
                return true;
        }
        return false;
    }

private:
    QRegExp m_regExp;
};
#endif

} // namespace QtCompat
