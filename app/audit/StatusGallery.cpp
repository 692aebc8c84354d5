#include "StatusGallery.h"

#include "ExpectedStatusLook.h"
#include "SwatchReader.h"

#include <VNAnimatedTabBar.h>
#include <VNItemDataRoles.h>

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QJsonArray>
#include <QLabel>
#include <QTabWidget>
#include <QTreeWidget>

#include <iterator>

namespace {
// Where a family's look is read: the whole widget, the first or the last tab of a tab bar (the
// gallery gives every tab the word's dominant status and the last tab, as the bar's last item,
// the whole word), or an item cell or header section whose status comes from the model.
enum class Where
{
    Widget,
    FirstTab,
    LastTab,
    ItemCell,
    HeaderSection
};

constexpr StatusSwatch::Parts fieldParts = StatusSwatch::AllParts;
// Widgets that draw the look as a frame with marks, over a fill of their own.
constexpr StatusSwatch::Parts paintedParts = StatusSwatch::Frame | StatusSwatch::Sigma | StatusSwatch::Compare;

const struct FamilyPlace
{
    const char* name;
    const char* page;
    // An object name, a class name for an unnamed widget, or "name/Class" for a child of a named one.
    const char* widget;
    Where where;
    StatusSwatch::Parts shown;
    bool hasText;
} familyPlaces[] = {
    {"line edit", "tabInOut", "vnLineEdit", Where::Widget, fieldParts, true},
    {"clear line edit", "tabInOut", "m_clearLineEdit", Where::Widget, fieldParts, true},
    {"value edit", "tabInOut", "vnValueEdit_29", Where::Widget, fieldParts, true},
    {"spin box", "tabInOut", "vnDoubleSpinBox", Where::Widget, fieldParts, true},
    {"combo box", "tabInOut", "m_vnComboBox", Where::Widget, fieldParts, true},
    {"groupable combo box", "tabInOut", "m_groupableComboBox", Where::Widget, fieldParts, true},
    {"double input combo box", "tabInOut", "m_doubleInputCombo", Where::Widget, fieldParts, true},
    {"Qt combo box", "tabInOut", "comboBox_7", Where::Widget, fieldParts, true},
    {"text edit", "tabInOut", "textEdit_3", Where::Widget, fieldParts, true},
    {"push button", "tabInOut", "m_vnPushButtonNormal", Where::Widget, fieldParts, true},
    {"Qt push button", "tabInOut", "m_qPushButtonNormal", Where::Widget, fieldParts, true},
    {"button", "tabInOut", "m_vnButtonNormal", Where::Widget, fieldParts, true},
    {"tool button", "tabInOut", "m_qToolButtonNormal", Where::Widget, fieldParts, true},
    {"command link button", "tabInOut", "commandLinkButton_3", Where::Widget, fieldParts, true},
    {"twin push button", "tabInOut", "m_vnTwinPushButtonNormal", Where::Widget, fieldParts, true},
    {"check box", "tabInOut", "m_vnCheckBoxNormal", Where::Widget, fieldParts, true},
    {"Qt check box", "tabInOut", "m_qCheckBoxNormal", Where::Widget, fieldParts, true},
    {"sliding check box", "tabInOut", "m_vnCheckBoxSliding", Where::Widget, fieldParts, true},
    {"radio button", "tabInOut", "m_vnRadioButtonNormal", Where::Widget, fieldParts, true},
    {"Qt radio button", "tabInOut", "m_radioButtonNormal", Where::Widget, fieldParts, true},
    {"curve input control", "tabInOut", "m_curveInputControl", Where::Widget, fieldParts, false},
    {"disclosure head", "tabDisclosures", "progressiveDisclosure/VNProgressiveDisclosureBtn", Where::Widget, fieldParts,
     true},
    {"slider", "tabMisc", "m_vnSlider_normal", Where::Widget, paintedParts, false},
    {"date edit", "tabMisc", "dateEdit", Where::Widget, fieldParts, true},
    {"result switcher", "tabMisc", "m_resultSwitcherSingle", Where::Widget, fieldParts, false},
    {"actions bar", "tabMisc", "m_actionBar", Where::Widget, fieldParts, false},
    {"custom menu button", "tabMisc", "m_vnCustomMenuButton", Where::Widget, fieldParts, true},
    {"tab bar tab", "tabNavigation", "VNAnimatedTabBar", Where::FirstTab, fieldParts, true},
    {"tab bar, last tab", "tabNavigation", "VNAnimatedTabBar", Where::LastTab, fieldParts, true},
    {"tab widget", "tabNavigation", "vnTabWidget", Where::Widget, paintedParts, false},
    {"task bar", "tabNavigation", "VNTaskBar", Where::Widget, paintedParts, false},
    {"element navigation bar", "tabNavigation", "elementNavigationBar", Where::Widget, paintedParts, false},
    {"view switcher", "tabNavigation", "bgViewswitcher", Where::Widget, paintedParts, false},
    {"module navigation", "tabNavigation", "moduleNavigation", Where::Widget, fieldParts, false},
    {"delegate cell", "tabTables", "treeWidget", Where::ItemCell, fieldParts, true},
    {"header section", "tabTables", "treeWidget", Where::HeaderSection, paintedParts, false},
};

// The row of the tree delegates test whose cells the toolkit's item delegate paints, and the
// column whose cell and header section show the word (a value column that reports no edits).
const QString itemDelegateRow = QStringLiteral("VNItemDelegate");
const int statusColumn = 2;
// The window around a widget that its swatch keeps, for the colour the look stands against.
const int surroundMargin = 3;

const QString noStatusButton = QStringLiteral("noStateButton");
const QString compareButton = QStringLiteral("compareDifferentStateButton");
const QString tabWidgetName = QStringLiteral("m_tabWidget");

QWidget* findWidget(QWidget* page, const QString& locator)
{
    const QString name = locator.section(QLatin1Char('/'), 0, 0);
    const QString childClass = locator.section(QLatin1Char('/'), 1, 1);
    QWidget* widget = page->findChild<QWidget*>(name);
    if (!widget) {
        for (QWidget* candidate : page->findChildren<QWidget*>()) {
            if (candidate->inherits(name.toLatin1().constData())) {
                widget = candidate;
                break;
            }
        }
    }
    if (!widget || childClass.isEmpty())
        return widget;
    for (QWidget* child : widget->findChildren<QWidget*>()) {
        if (child->inherits(childClass.toLatin1().constData()))
            return child;
    }
    return nullptr;
}

// The status cell of the top-level row that shows `text` in its first column.
QModelIndex findCell(QTreeWidget* tree, const QString& text)
{
    const QList<QTreeWidgetItem*> rows = tree->findItems(text, Qt::MatchExactly, 0);
    return rows.isEmpty() ? QModelIndex() : tree->model()->index(tree->indexOfTopLevelItem(rows.first()), statusColumn);
}
} // namespace

// A family's widget, the widget to grab around it and where the look lies in that grab.
struct StatusGallery::Subject
{
    QWidget* widget = nullptr;
    QWidget* canvas = nullptr;
    QRect area;   // in the canvas
    QRect around; // the part of the canvas to grab: the area and what surrounds it

    bool isValid() const { return widget && canvas && area.isValid(); }

    static Subject locate(QWidget* page, const FamilyPlace& place)
    {
        Subject subject;
        subject.widget = findWidget(page, QString::fromLatin1(place.widget));
        if (!subject.widget)
            return subject;
        switch (place.where) {
        case Where::Widget:
            subject.canvas = subject.widget->parentWidget();
            subject.area = subject.widget->geometry();
            break;
        case Where::FirstTab:
        case Where::LastTab:
            if (auto* bar = qobject_cast<VNAnimatedTabBar*>(subject.widget)) {
                subject.canvas = bar;
                subject.area = bar->tabRect(place.where == Where::FirstTab ? 0 : bar->count() - 1);
                // A tab stands against the bar, not against its neighbour tabs.
                subject.around = bar->rect();
            }
            break;
        case Where::ItemCell:
            if (auto* tree = qobject_cast<QTreeWidget*>(subject.widget)) {
                subject.canvas = tree->viewport();
                subject.area = tree->visualRect(findCell(tree, itemDelegateRow));
            }
            break;
        case Where::HeaderSection:
            if (auto* tree = qobject_cast<QTreeWidget*>(subject.widget)) {
                QHeaderView* header = tree->header();
                subject.canvas = header;
                subject.area = QRect(header->sectionViewportPosition(statusColumn), 0,
                                     header->sectionSize(statusColumn), header->height());
            }
            break;
        }
        if (subject.canvas && subject.around.isNull())
            subject.around = subject.area.adjusted(-surroundMargin, -surroundMargin, surroundMargin, surroundMargin) &
                             subject.canvas->rect();
        return subject;
    }

    QImage grab() const { return canvas->grab(around).toImage(); }

    // Where the look lies in grab().
    QRect areaInGrab() const { return area.translated(-around.topLeft()); }
};

StatusGallery::StatusGallery(const QString& windowName, QWidget* window)
    : m_windowName(windowName)
    , m_window(window)
    , m_tabs(window->findChild<QTabWidget*>(tabWidgetName))
{}

bool StatusGallery::isGallery(const QWidget* window)
{
    return window->findChild<QTabWidget*>(tabWidgetName) && window->findChild<QAbstractButton*>(noStatusButton) &&
           window->findChild<QAbstractButton*>(compareButton);
}

QList<StatusGallery::WordButton> StatusGallery::wordButtons() const
{
    QList<WordButton> words;
    auto* none = m_window->findChild<QAbstractButton*>(noStatusButton);
    const QList<QAbstractButton*> buttons = none->parentWidget()->findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        // The words are the push buttons of the left panel, in its order; its check boxes and the
        // compare toggle are not words.
        if (button->isCheckable() || button->parentWidget() != none->parentWidget())
            continue;
        QString label = button->text();
        label.replace(QLatin1String("&&"), QLatin1String("&"));
        words << WordButton{button, label};
    }
    return words;
}

StatusMatrix StatusGallery::measure()
{
    StatusMatrix matrix;
    if (!m_tabs)
        return matrix;
    m_words = wordButtons();
    QWidget* shownPage = m_tabs->currentWidget();
    for (const FamilyPlace& place : familyPlaces)
        matrix.addFamily({QString::fromLatin1(place.name), QString()});
    QStringList pages;
    for (const FamilyPlace& place : familyPlaces) {
        if (place.where != Where::ItemCell && place.where != Where::HeaderSection &&
            !pages.contains(QLatin1String(place.page)))
            pages << QString::fromLatin1(place.page);
    }
    for (const QString& page : qAsConst(pages))
        measurePage(matrix, page);
    QList<StatusMatrix::Word> words;
    for (int i = 0; i < m_words.size(); ++i)
        words << StatusMatrix::Word{m_words.at(i).label, m_flags.value(i)};
    matrix.setWords(words);
    measureModelPage(matrix);
    setCompare(false);
    m_tabs->setCurrentWidget(shownPage);
    QApplication::processEvents();
    return matrix;
}

void StatusGallery::setCompare(bool on)
{
    auto* toggle = m_window->findChild<QAbstractButton*>(compareButton);
    if (toggle->isChecked() != on)
        toggle->click();
}

// The word the gallery applied, as a plain widget of the page carries it.
VNWidgetStatus::StatusFlags StatusGallery::appliedWord(QWidget* page) const
{
    const QLabel* probe = page->findChild<QLabel*>();
    return probe ? VNWidgetStatus::statusFromProperty(probe) : VNWidgetStatus::StatusFlags();
}

void StatusGallery::measurePage(StatusMatrix& matrix, const QString& pageName)
{
    QWidget* page = m_tabs->findChild<QWidget*>(pageName);
    if (!page)
        return;
    m_tabs->setCurrentWidget(page);
    QApplication::processEvents();
    QList<QPair<int, Subject>> subjects;
    for (int family = 0; family < int(std::size(familyPlaces)); ++family) {
        if (pageName != QLatin1String(familyPlaces[family].page))
            continue;
        const Subject subject = Subject::locate(page, familyPlaces[family]);
        if (subject.isValid())
            subjects << qMakePair(family, subject);
    }
    for (bool compare : {false, true}) {
        setCompare(compare);
        for (int word = 0; word < m_words.size(); ++word) {
            m_words.at(word).button->click();
            QCoreApplication::sendPostedEvents();
            const VNWidgetStatus::StatusFlags flags = appliedWord(page);
            if (!compare && m_flags.size() <= word)
                m_flags << flags;
            for (const auto& entry : qAsConst(subjects))
                record(matrix, entry.first, word, compare, entry.second, flags);
        }
    }
    setCompare(false);
    m_words.first().button->click();
}

void StatusGallery::measureModelPage(StatusMatrix& matrix)
{
    QWidget* page = m_tabs->findChild<QWidget*>(QStringLiteral("tabTables"));
    auto* tree = page ? page->findChild<QTreeWidget*>(QStringLiteral("treeWidget")) : nullptr;
    const QModelIndex cell = tree ? findCell(tree, itemDelegateRow) : QModelIndex();
    if (!cell.isValid())
        return;
    m_tabs->setCurrentWidget(page);
    QApplication::processEvents();
    QAbstractItemModel* model = tree->model();
    const QVariant cellStatus = cell.data(VNItemDataRoles::StatusRole);
    const QVariant headerStatus = model->headerData(statusColumn, Qt::Horizontal, VNItemDataRoles::StatusRole);
    QList<QPair<int, Subject>> subjects;
    for (int family = 0; family < int(std::size(familyPlaces)); ++family) {
        const FamilyPlace& place = familyPlaces[family];
        if (place.where == Where::ItemCell || place.where == Where::HeaderSection)
            subjects << qMakePair(family, Subject::locate(page, place));
    }
    for (bool compare : {false, true}) {
        for (int word = 0; word < m_flags.size(); ++word) {
            VNWidgetStatus::StatusFlags flags = m_flags.at(word);
            VNWidgetStatus::setFlag(flags, VNWidgetStatus::compareDifferent, compare);
            model->setData(cell, int(flags), VNItemDataRoles::StatusRole);
            model->setHeaderData(statusColumn, Qt::Horizontal, int(flags), VNItemDataRoles::StatusRole);
            for (const auto& entry : qAsConst(subjects)) {
                if (entry.second.isValid())
                    record(matrix, entry.first, word, compare, entry.second, flags);
            }
        }
    }
    model->setData(cell, cellStatus, VNItemDataRoles::StatusRole);
    model->setHeaderData(statusColumn, Qt::Horizontal, headerStatus, VNItemDataRoles::StatusRole);
}

void StatusGallery::record(StatusMatrix& matrix, int family, int word, bool compare, const Subject& subject,
                           VNWidgetStatus::StatusFlags flags)
{
    const FamilyPlace& place = familyPlaces[family];
    const QImage picture = subject.grab();
    if (word == 0 && !compare)
        m_plain.insert(family, picture);
    // A first tab and a header section have room for one mark: the palette's mark of the word's
    // dominant status.
    if (place.where == Where::FirstTab || place.where == Where::HeaderSection)
        flags = VNWidgetStatus::getDominantStatusFromFlag(flags);
    const SwatchReader reader(m_plain.value(family), picture, subject.areaInGrab());
    // Disabled widgets are exempt from the text rule, as accessibility guidelines exempt them.
    const bool hasText = place.hasText && subject.widget->isEnabled();
    matrix.setCell(family, word, compare, reader.read(ExpectedStatusLook::of(flags), place.shown, hasText), picture);
    matrix.setFamilyObjectName(family, AuditFinding::nameOf(subject.widget));
}

QList<AuditFinding> StatusGallery::findings(const StatusMatrix& matrix) const
{
    QList<AuditFinding> findings;
    const QList<StatusMatrix::Family>& families = matrix.families();
    for (int family = 0; family < families.size(); ++family) {
        // family, part, measured colour -> the finding that collects its words
        QHash<QString, int> byColor;
        for (bool compare : {false, true}) {
            for (int word = 0; word < matrix.words().size(); ++word) {
                if (!matrix.hasCell(family, word, compare))
                    continue;
                const StatusSwatch swatch = matrix.cell(family, word, compare);
                for (StatusSwatch::Part part : StatusSwatch::parts) {
                    const QString partName = StatusSwatch::partName(part);
                    if (!swatch.disagreeing.contains(partName))
                        continue;
                    const QColor measured = swatch.measured(part);
                    const QColor expected = swatch.expected(part);
                    const QString key = partName + (measured.isValid() ? measured.name() : QString()) + expected.name();
                    const QString wordLabel =
                        matrix.words().at(word).label + (compare ? QStringLiteral(" + Compare Differs") : QString());
                    if (byColor.contains(key)) {
                        AuditFinding& existing = findings[byColor.value(key)];
                        QJsonArray words = existing.measured.value(QStringLiteral("words")).toArray();
                        words << wordLabel;
                        existing.measured.insert(QStringLiteral("words"), words);
                        continue;
                    }
                    AuditFinding finding;
                    finding.window = m_windowName;
                    finding.objectName = families.at(family).objectName;
                    finding.check = AuditFinding::statusCheck;
                    finding.rule = partName;
                    finding.message =
                        measured.isValid()
                            ? QStringLiteral("The %1 shows its %2 in %3 where the palette has %4.")
                                  .arg(families.at(family).name, partName, measured.name(), expected.name())
                            : QStringLiteral("The %1 shows no %2 where the palette has %3.")
                                  .arg(families.at(family).name, partName, expected.name());
                    finding.measured =
                        QJsonObject{{QStringLiteral("family"), families.at(family).name},
                                    {QStringLiteral("color"), measured.isValid() ? measured.name() : QString()},
                                    {QStringLiteral("words"), QJsonArray{wordLabel}}};
                    finding.expected = QJsonObject{{QStringLiteral("color"), expected.name()}};
                    finding.crop = matrix.picture(family, word, compare);
                    byColor.insert(key, findings.size());
                    findings << finding;
                }
            }
        }
    }
    return findings;
}
