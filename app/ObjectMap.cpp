#include "ObjectMap.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QJsonDocument>
#include <QMenu>
#include <QMetaProperty>
#include <QPushButton>
#include <QSaveFile>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>
#include <QTreeView>
#include <QWidget>

namespace {
QJsonArray classChain(const QWidget* widget)
{
    QJsonArray classes;
    for (const QMetaObject* meta = widget->metaObject(); meta; meta = meta->superClass())
        classes.append(QString::fromLatin1(meta->className()));
    return classes;
}

QJsonObject rectObject(const QRect& rect)
{
    return QJsonObject{{QStringLiteral("x"), rect.x()},
                       {QStringLiteral("y"), rect.y()},
                       {QStringLiteral("width"), rect.width()},
                       {QStringLiteral("height"), rect.height()}};
}

// A robot reads what the widget shows: its text or title; a window's title is kept for windows only,
// because every widget carries an (unused) one.
void addTexts(const QWidget* widget, QJsonObject& node)
{
    const QMetaObject* meta = widget->metaObject();
    for (const char* name : {"text", "title"}) {
        const int index = meta->indexOfProperty(name);
        if (index >= 0 && meta->property(index).isReadable())
            node.insert(QLatin1String(name), meta->property(index).read(widget).toString());
    }
    if (widget->isWindow())
        node.insert(QStringLiteral("windowTitle"), widget->windowTitle());
}

QJsonArray actionTexts(const QList<QAction*>& actions)
{
    QJsonArray texts;
    for (const QAction* action : actions) {
        if (!action->isSeparator())
            texts.append(action->text());
    }
    return texts;
}

QJsonArray headerTexts(const QAbstractItemModel* model)
{
    QJsonArray texts;
    for (int section = 0; model && section < model->columnCount(); ++section)
        texts.append(model->headerData(section, Qt::Horizontal).toString());
    return texts;
}

// The entries a robot picks by their text: the items of a combo box, the tabs of a tab bar, the
// sections of a view's header, the entries of a button's menu or of a context menu.
QJsonArray itemTexts(const QWidget* widget)
{
    QJsonArray items;
    if (const auto* box = qobject_cast<const QComboBox*>(widget)) {
        for (int index = 0; index < box->count(); ++index)
            items.append(box->itemText(index));
    } else if (const auto* tabs = qobject_cast<const QTabWidget*>(widget)) {
        for (int index = 0; index < tabs->count(); ++index)
            items.append(tabs->tabText(index));
    } else if (const auto* bar = qobject_cast<const QTabBar*>(widget)) {
        for (int index = 0; index < bar->count(); ++index)
            items.append(bar->tabText(index));
    } else if (qobject_cast<const QTreeView*>(widget) || qobject_cast<const QTableView*>(widget)) {
        items = headerTexts(static_cast<const QAbstractItemView*>(widget)->model());
    } else if (const auto* toolButton = qobject_cast<const QToolButton*>(widget); toolButton && toolButton->menu()) {
        items = actionTexts(toolButton->menu()->actions());
    } else if (const auto* pushButton = qobject_cast<const QPushButton*>(widget); pushButton && pushButton->menu()) {
        items = actionTexts(pushButton->menu()->actions());
    } else if (widget->contextMenuPolicy() == Qt::ActionsContextMenu) {
        items = actionTexts(widget->actions());
    }
    return items;
}
} // namespace

QJsonObject ObjectMap::describe(const QWidget* widget, const QString& parentPath)
{
    const QString name = widget->objectName();
    // Unnamed containers are not addressable, so they do not add a step to the path.
    const QString path = parentPath.isEmpty() || name.isEmpty() ? (name.isEmpty() ? parentPath : name)
                                                                : parentPath + QLatin1Char('/') + name;
    const QJsonArray classes = classChain(widget);
    QJsonObject node{{QStringLiteral("objectName"), name},
                     {QStringLiteral("class"), classes.first()},
                     {QStringLiteral("classes"), classes},
                     {QStringLiteral("path"), path},
                     {QStringLiteral("geometry"), rectObject(widget->geometry())},
                     {QStringLiteral("windowGeometry"),
                      rectObject(QRect(widget->mapTo(widget->window(), QPoint()), widget->size()))},
                     {QStringLiteral("visible"), widget->isVisible()},
                     {QStringLiteral("enabled"), widget->isEnabled()}};
    addTexts(widget, node);
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget); button && button->isCheckable())
        node.insert(QStringLiteral("checked"), button->isChecked());
    const QJsonArray items = itemTexts(widget);
    if (!items.isEmpty())
        node.insert(QStringLiteral("items"), items);
    QJsonArray children;
    const QList<QWidget*> childWidgets = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* child : childWidgets) {
        // Windows owned by this one are mapped on their own.
        if (!child->isWindow())
            children.append(describe(child, path));
    }
    if (!children.isEmpty())
        node.insert(QStringLiteral("children"), children);
    return node;
}

void ObjectMap::addWindow(const QString& button, const QWidget* window)
{
    m_windows.append(
        QJsonObject{{QStringLiteral("button"), button}, {QStringLiteral("window"), describe(window, QString())}});
}

QJsonObject ObjectMap::toJson() const
{
    return QJsonObject{{QStringLiteral("windows"), m_windows}};
}

QString ObjectMap::save(const QString& path) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(toJson()).toJson()) < 0 || !file.commit())
        return file.errorString();
    return QString();
}
