#include "NameCheck.h"

#include "TabStops.h"

#include <QAccessibleInterface>
#include <QJsonArray>
#include <QMetaEnum>
#include <QWidget>

namespace {
using Role = QAccessible::Role;

// Most specific class first: the first class that the widget inherits decides. Buttons may be
// toggles (CheckBox) or carry a menu, as Qt's own accessibility reports them.
const struct
{
    const char* className;
    std::initializer_list<Role> roles;
} rolesByClass[] = {
    {"QCheckBox", {QAccessible::CheckBox}},
    {"QRadioButton", {QAccessible::RadioButton}},
    {"QAbstractButton",
     {QAccessible::Button, QAccessible::ButtonMenu, QAccessible::ButtonDropDown, QAccessible::CheckBox,
      QAccessible::RadioButton, QAccessible::Link}},
    {"QLineEdit", {QAccessible::EditableText}},
    {"QTextEdit", {QAccessible::EditableText, QAccessible::StaticText}},
    {"QPlainTextEdit", {QAccessible::EditableText, QAccessible::StaticText}},
    {"QAbstractSpinBox", {QAccessible::SpinBox}},
    {"QComboBox", {QAccessible::ComboBox}},
    {"QScrollBar", {QAccessible::ScrollBar}},
    {"QDial", {QAccessible::Dial}},
    {"QAbstractSlider", {QAccessible::Slider}},
    {"QTabBar", {QAccessible::PageTabList}},
    {"QTreeView", {QAccessible::Tree}},
    {"QTableView", {QAccessible::Table}},
    {"QListView", {QAccessible::List}},
    {"QGroupBox", {QAccessible::Grouping, QAccessible::CheckBox}},
    // Qt announces a scroll area as a client area; its name says what it holds.
    {"QScrollArea", {QAccessible::Client}},
};

QString roleName(Role role)
{
    const QMetaEnum roles = QMetaEnum::fromType<QAccessible::Role>();
    const char* name = roles.valueToKey(role);
    return name ? QString::fromLatin1(name) : QString::number(role);
}

QJsonArray roleNames(const QList<Role>& roles)
{
    QJsonArray names;
    for (Role role : roles)
        names << roleName(role);
    return names;
}
} // namespace

QList<QAccessible::Role> NameCheck::rolesFor(const QWidget* widget)
{
    for (const auto& entry : rolesByClass) {
        if (widget->inherits(entry.className))
            return QList<Role>(entry.roles);
    }
    return {};
}

bool NameCheck::isVague(QAccessible::Role role)
{
    return role == QAccessible::NoRole || role == QAccessible::Client || role == QAccessible::Pane ||
           role == QAccessible::Window || role == QAccessible::Grouping || role == QAccessible::Whitespace;
}

// What a screen reader announces when the tab stop takes the focus: the widget that hands its
// focus to the stop (a spin box to its line edit), unless that one is a mere container (a tab
// widget hands it to its tab bar, which says more).
QWidget* NameCheck::announced(QWidget* stop)
{
    QWidget* owner = TabStops::owner(stop);
    if (owner == stop)
        return owner;
    QAccessibleInterface* ownerInterface = QAccessible::queryAccessibleInterface(owner);
    QAccessibleInterface* stopInterface = QAccessible::queryAccessibleInterface(stop);
    const bool ownerIsVague = !ownerInterface || isVague(ownerInterface->role());
    return ownerIsVague && stopInterface && !isVague(stopInterface->role()) ? stop : owner;
}

QList<AuditFinding> NameCheck::run(const QString& windowName, QWidget* window)
{
    QList<AuditFinding> findings;
    for (QWidget* stop : TabStops::of(window)) {
        QWidget* owner = announced(stop);
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(owner);
        const QString name = accessible ? accessible->text(QAccessible::Name).trimmed() : QString();
        const Role role = accessible ? accessible->role() : QAccessible::NoRole;
        if (name.isEmpty()) {
            findings << finding(windowName, owner, QStringLiteral("no-name"),
                                QStringLiteral("A screen reader announces the widget without a name."));
            findings.last().measured.insert(QStringLiteral("role"), roleName(role));
        }
        const QList<Role> roles = rolesFor(owner);
        if (roles.isEmpty() ? !isVague(role) : roles.contains(role))
            continue;
        findings << finding(windowName, owner, QStringLiteral("wrong-role"),
                            QStringLiteral("A screen reader announces the widget as %1.").arg(roleName(role)));
        findings.last().measured.insert(QStringLiteral("role"), roleName(role));
        findings.last().expected.insert(
            QStringLiteral("roles"), roles.isEmpty() ? QJsonArray{QStringLiteral("a control role")} : roleNames(roles));
    }
    return findings;
}

AuditFinding NameCheck::finding(const QString& windowName, QWidget* owner, const QString& rule, const QString& message)
{
    return AuditFinding::aboutWidget(windowName, owner, AuditFinding::namesCheck, rule, message);
}
