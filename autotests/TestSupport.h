#pragma once

// What the collection's tests share: finding a form's widgets by object name, clicking them as a
// user does, dragging data onto a view, and the toolkit's status words as the status gallery
// applies them. What a form shows
// (names, classes, texts, titles) is checked once for every window by the object-map baseline
// (tst_objectmap), not here.

#include <VNWidgetStatus.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDropEvent>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include <functional>

// The named descendant of `parent`; a missing one ends the test run with a message naming it,
// because no check can go on without it.
template<typename T>
T* child(const QObject* parent, const QString& name)
{
    T* found = parent->findChild<T*>(name);
    if (!found)
        qFatal("%s has no %s named \"%s\"", qPrintable(parent->objectName()), T::staticMetaObject.className(),
               qPrintable(name));
    return found;
}

// Clicks the named button with the mouse near its left edge, where every kind of button (a push
// button's face, a check box's or radio button's indicator) takes the click.
inline void clickButton(const QObject* parent, const QString& name)
{
    auto* button = child<QAbstractButton>(parent, name);
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(6, button->height() / 2));
}

// Sends a mouse event of a drag with the left button, as a window system does (QTest's moves
// carry no held button): press, moves with the button held, release.
inline void sendLeftButtonDrag(QWidget* widget, QEvent::Type type, QPoint position)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, held, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

// Writes a file into the folder and returns its path.
inline QString writeFile(const QTemporaryDir& dir, const QString& name, const QByteArray& content)
{
    QFile file(dir.filePath(name));
    file.open(QIODevice::WriteOnly);
    file.write(content);
    return file.fileName();
}

// Drags the data over the view's viewport to the position as Qt delivers it: the action the view
// chose when the drag entered and moved there.
inline Qt::DropAction moveAction(QAbstractItemView* view, const QMimeData* data, QPoint position)
{
    QDragEnterEvent enter(position, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &enter);
    QDragMoveEvent move(position, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &move);
    return move.isAccepted() ? move.dropAction() : Qt::IgnoreAction;
}

// Drags the data there and drops it; returns whether the view took the drop.
inline bool dropOn(QAbstractItemView* view, const QMimeData* data, QPoint position)
{
    moveAction(view, data, position);
    QDropEvent drop(position, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
    drop.setAccepted(false);
    QApplication::sendEvent(view->viewport(), &drop);
    return drop.isAccepted();
}

// Runs the action on the next modal window of the class once its modal loop has started; the
// action ends the window.
template<typename T>
void onNextModal(const std::function<void(T*)>& action)
{
    auto* timer = new QTimer;
    timer->setInterval(5);
    QObject::connect(timer, &QTimer::timeout, [timer, action] {
        if (auto* window = qobject_cast<T*>(QApplication::activeModalWidget())) {
            timer->stop();
            timer->deleteLater();
            action(window);
        }
    });
    timer->start();
}

// The mock Swedish translation that the build makes, installed while this lives. Not loaded when
// the build had no lupdate and lrelease.
class MockTranslation
{
public:
    MockTranslation()
        : m_loaded(
              m_translator.load(QStringLiteral(":/TestWidgetCollection/Translations/testwidgetcollection_mock.qm")) &&
              QCoreApplication::installTranslator(&m_translator))
    {}
    ~MockTranslation() { QCoreApplication::removeTranslator(&m_translator); }
    bool loaded() const { return m_loaded; }

private:
    QTranslator m_translator;
    bool m_loaded;
};

struct StatusWord
{
    const char* name;   // the text of the gallery's button
    const char* button; // the gallery's button that applies it
    VNWidgetStatus::StatusFlags flags;
};

// The words of the status gallery, in the order of its buttons.
inline const QVector<StatusWord>& statusWords()
{
    using S = VNWidgetStatus;
    static const QVector<StatusWord> words = {
        {"None", "noStateButton", S::undef},
        {"Need Input", "needInputStateButton", S::needInput},
        {"User Edited", "userEditStateButton", S::userEdit},
        {"Different", "differentStateButton", S::different},
        {"Sigma Enabled", "sigmaEnabledStateButton", S::sigmaAvailable},
        {"Sigma Active", "sigmaActiveStateButton", S::sigmaAvailable | S::sigmaOn},
        {"Sigma Invalid", "sigmaInvalidStateButton", S::sigmaAvailable | S::sigmaOn | S::sigmaError},
        {"Sigma Std Changed", "sigmaStandardChangedStateButton",
         S::sigmaAvailable | S::sigmaStandardChanged | S::sigmaOn | S::standardDeviate},
        {"Sigma & Standard", "sigmaAndStandardStateButton",
         S::sigmaAvailable | S::standardEnabled | S::standardDefined},
        {"Sigma & Std Changed", "sigmaAndStandardChangedStateButton",
         S::sigmaAvailable | S::standardEnabled | S::standardChanged},
        {"Standard Defined", "standardDefinedStateButton", S::standardEnabled | S::standardDefined},
        {"Standard Changed", "standardChangedStateButton", S::standardEnabled | S::standardChanged},
        {"Standard Locked", "standardLockedStateButton", S::standardEnabled | S::standardDefined | S::standardLocked},
        {"Std Changed Locked", "standardChangedLockedStateButton",
         S::standardEnabled | S::standardChanged | S::standardLocked},
        {"Standard Default", "standardDefaultStateButton",
         S::standardEnabled | S::standardDefined | S::standardDefault},
        {"Std Default Changed", "standardDefaultChangedStateButton",
         S::standardEnabled | S::standardDefined | S::standardDefault | S::standardDefaultChanged},
    };
    return words;
}

// One data row per status word, named after it, with the columns "button" and "word" (the flags
// as an int).
inline void addStatusWordRows()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("word");
    for (const StatusWord& word : statusWords())
        QTest::newRow(word.name) << QString::fromLatin1(word.button) << int(word.flags);
}
