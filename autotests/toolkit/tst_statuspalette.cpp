#include <VNAnimatedOPTabBar.h>
#include <VNBarChart.h>
#include <VNButton.h>
#include <VNCheckBox.h>
#include <VNComboBox.h>
#include <VNCustomHeaderView.h>
#include <VNDoubleSpinBox.h>
#include <VNElementNavigationBar.h>
#include <VNItemDataRoles.h>
#include <VNItemDelegate.h>
#include <VNListWidget.h>
#include <VNMultiProgressBar.h>
#include <VNProgressiveDisclosureBtn.h>
#include <VNRadioButton.h>
#include <VNResultSwitcher.h>
#include <VNSlider.h>
#include <VNSlidingCheckBox.h>
#include <VNStatusPalette.h>
#include <VNStyleSheet.h>
#include <VNTabWidget.h>
#include <VNTaskBar.h>
#include <VNTreeView.h>
#include <VNTwinPushButton.h>
#include <VNViewSwitcher.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QLayout>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPainter>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include <functional>
#include <memory>

namespace {
using Flags = VNWidgetStatus::StatusFlags;
using S = VNWidgetStatus;
using Look = VNStatusPalette::Look;
using SigmaLook = VNStatusPalette::SigmaLook;

// One status word for each part of the palette, and the entry it must be painted in.
struct Word
{
    const char* name;
    int flags;
    Look look;
    SigmaLook sigma;
};

const Word words[] = {
    {"needInput", S::needInput, Look::needInput, SigmaLook::none},
    {"userEdit", S::userEdit, Look::userEdit, SigmaLook::none},
    {"different", S::different, Look::different, SigmaLook::none},
    {"standardDefined", S::standardDefined, Look::standardDefined, SigmaLook::none},
    {"standardChanged", S::standardChanged, Look::standardChanged, SigmaLook::none},
    {"standardLocked", S::standardLocked, Look::standardLocked, SigmaLook::none},
    {"standardChangedLocked", S::standardChangedLocked, Look::standardChangedLocked, SigmaLook::none},
    {"standardDefault", S::standardDefault, Look::standardDefault, SigmaLook::none},
    {"standardDefaultChanged", S::standardDefaultChanged, Look::standardDefaultChanged, SigmaLook::none},
    {"sigma available", S::sigmaAvailable, Look::undef, SigmaLook::available},
    {"sigma active", S::sigmaAvailable | S::sigmaOn, Look::undef, SigmaLook::active},
    {"sigma invalid", S::sigmaAvailable | S::sigmaOn | S::sigmaError, Look::undef, SigmaLook::invalid},
    {"sigma standard changed", S::sigmaAvailable | S::sigmaStandardChanged, Look::undef, SigmaLook::standardChanged},
    {"compare differs", S::compareDifferent, Look::undef, SigmaLook::none},
};

// A painted status and where the family shows each part of it; a part it does not show has an
// empty rectangle.
struct Painted
{
    QImage image;
    bool enabled;
    QRect frame;   // the main look's frame colour
    QRect fill;    // the main look's fill
    QRect sigma;   // the sigma bar or marker
    QRect compare; // the compare-differs mark
    QRect mark;    // the one colour of a word, where there is room for one only
};

// Fields and framed widgets show a status on the edges of an area: the frame around it (on the
// middle row), the sigma bar on the left, the compare frame on top; fields fill it.
Painted edgesOf(const QImage& image, const QRect& area, bool filled, bool enabled = true)
{
    const int middle = area.center().y();
    return {image,
            enabled,
            QRect(area.left(), middle, area.width(), 1),
            filled ? QRect(area.left() + 6, middle, area.width() - 12, 1) : QRect(),
            QRect(area.left(), middle - 2, 5, 4),
            QRect(area.left(), area.top(), area.width(), 3),
            QRect()};
}

Painted onEdges(QWidget* widget, Flags flags, bool filled, const std::function<QRect(QWidget*)>& areaOf = nullptr)
{
    std::unique_ptr<QWidget> owner(widget);
    if (auto* toolkitWidget = dynamic_cast<VNWidgetInterface*>(widget))
        toolkitWidget->setWidgetStatus(flags);
    else
        VNWidgetStatus::setStatusProperty(widget, flags);
    const QImage image = widget->grab().toImage();
    return edgesOf(image, areaOf ? areaOf(widget) : image.rect(), filled, widget->isEnabled());
}

template<typename W>
W* sized(W* widget, int width, int height, bool enabled = true)
{
    widget->resize(width, height);
    widget->setEnabled(enabled);
    return widget;
}

template<typename Bar>
Painted animatedTab(Flags flags, bool enabled)
{
    Bar bar;
    bar.addTab(QStringLiteral("A"));
    bar.addTab(QStringLiteral("B"));
    sized(&bar, 300, 30, enabled)->setWidgetStatus(1, flags);
    return edgesOf(bar.grab().toImage(), bar.tabRect(1).adjusted(0, 1, -1, -1), true, enabled);
}

// The whole header shows compare-differs as a frame, each section its status as a band.
Painted headerSection(Flags flags)
{
    QStandardItemModel model(1, 2);
    model.setHeaderData(0, Qt::Horizontal, int(flags), VNItemDataRoles::StatusRole);
    VNCustomHeaderView header(Qt::Horizontal, QSize(0, 0));
    header.setModel(&model);
    header.resize(200, 30);
    header.setCompareDifferent(flags.testFlag(VNWidgetStatus::compareDifferent));
    const QImage image = header.viewport()->grab().toImage();
    return {image,
            true,
            {},
            {},
            {},
            QRect(0, 0, image.width(), 3),
            QRect(4, header.height() - 3, header.sectionSize(0) - 8, 2)};
}

// A cell: the fill, a bar on the left in the frame colour, the sigma marker on the right, the
// marks of the status bits (compare differs among them) in the top right corner.
Painted itemCell(Flags flags, bool active)
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), int(flags), VNItemDataRoles::StatusRole);
    model.setData(model.index(0, 0), active, VNItemDataRoles::ActiveRole);
    VNTreeView view;
    view.setModel(&model);
    view.setItemDelegate(new VNItemDelegate(&view));
    view.resize(200, 60);
    const QRect cell = view.visualRect(model.index(0, 0));
    Painted painted = edgesOf(view.viewport()->grab().toImage(), cell, true, active);
    painted.sigma = VNItemDelegate::sigmaRect(cell);
    painted.compare = QRect(cell.right() - 4, cell.top() + 1, 4, 4);
    return painted;
}

Painted popupItem(Flags flags)
{
    VNComboBox combo;
    combo.addItems({QStringLiteral("Steel"), QStringLiteral("Aluminium")});
    combo.setItemWidgetStatus(1, flags);
    combo.show();
    combo.showPopup();
    QAbstractItemView* view = combo.view();
    const QRect item = view->visualRect(view->model()->index(1, 0));
    const QImage image = view->viewport()->grab().toImage();
    combo.hidePopup();
    return {image, true, {}, {}, {}, {}, QRect(item.left() + 1, item.center().y() - 1, 4, 2)};
}

// The switcher's buttons take the status one by one.
Painted resultButton(Flags flags)
{
    VNResultSwitcher switcher;
    switcher.insertButton(QIcon(), QStringLiteral("A"), -1, 0);
    QToolButton* button = switcher.insertButton(QIcon(), QStringLiteral("B"), -1, 1);
    sized(&switcher, 120, 40)->setItemWidgetStatus(1, flags);
    switcher.layout()->activate();
    return edgesOf(switcher.grab().toImage(), button->geometry(), true);
}

QWidget* tabWidget()
{
    auto* tabs = sized(new VNTabWidget, 200, 80);
    tabs->addTab(new QWidget, QStringLiteral("tabNormal"));
    return tabs;
}

// A tab widget shows the status on its pane, below the tabs.
QRect paneOf(QWidget* widget)
{
    return widget->rect().adjusted(0, static_cast<VNTabWidget*>(widget)->tabBar()->height(), 0, 0);
}

using Paint = std::function<Painted(Flags)>;

const QList<QPair<const char*, Paint>> families = {
    {"line edit", [](Flags f) { return onEdges(sized(new QLineEdit(QStringLiteral("42")), 120, 26), f, true); }},
    {"line edit, disabled",
     [](Flags f) { return onEdges(sized(new QLineEdit(QStringLiteral("42")), 120, 26, false), f, true); }},
    {"spin box", [](Flags f) { return onEdges(sized(new VNDoubleSpinBox, 120, 26), f, true); }},
    {"combo box", [](Flags f) { return onEdges(sized(new VNComboBox, 120, 26), f, true); }},
    {"check box", [](Flags f) { return onEdges(sized(new VNCheckBox(QStringLiteral("On")), 120, 26), f, true); }},
    {"radio button", [](Flags f) { return onEdges(sized(new VNRadioButton(QStringLiteral("On")), 120, 26), f, true); }},
    {"tool button", [](Flags f) { return onEdges(sized(new VNButton, 120, 26), f, true); }},
    {"result switcher button", resultButton},
    {"push button", [](Flags f) { return onEdges(sized(new QPushButton(QStringLiteral("Go")), 120, 26), f, true); }},
    {"twin push button",
     [](Flags f) {
         // At its own height: its halves keep theirs, and the status frames the halves.
         auto* twin = new VNTwinPushButton;
         return onEdges(sized(twin, 200, twin->sizeHint().height()), f, true);
     }},
    {"sliding check box",
     [](Flags f) { return onEdges(sized(new VNSlidingCheckBox(QStringLiteral("On")), 120, 26), f, true); }},
    {"disclosure head", [](Flags f) { return onEdges(sized(new VNProgressiveDisclosureBtn, 160, 24), f, true); }},
    {"slider", [](Flags f) { return onEdges(sized(new VNSlider(Qt::Horizontal), 200, 40), f, false); }},
    {"bar chart", [](Flags f) { return onEdges(sized(new VNBarChart, 200, 80), f, false); }},
    {"progress bar", [](Flags f) { return onEdges(sized(new VNMultiProgressBar, 200, 40), f, false); }},
    {"task bar", [](Flags f) { return onEdges(sized(new VNTaskBar, 200, 40), f, false); }},
    {"element navigation bar", [](Flags f) { return onEdges(sized(new VNElementNavigationBar, 200, 40), f, false); }},
    {"view switcher", [](Flags f) { return onEdges(sized(new VNViewSwitcher, 200, 40), f, false); }},
    {"tab widget pane", [](Flags f) { return onEdges(tabWidget(), f, false, paneOf); }},
    {"list widget", [](Flags f) { return onEdges(sized(new VNListWidget, 200, 80), f, false); }},
    {"animated tab", [](Flags f) { return animatedTab<VNAnimatedTabBar>(f, true); }},
    {"animated tab, disabled", [](Flags f) { return animatedTab<VNAnimatedTabBar>(f, false); }},
    {"animated OP tab", [](Flags f) { return animatedTab<VNAnimatedOPTabBar>(f, true); }},
    {"header section", headerSection},
    {"item cell", [](Flags f) { return itemCell(f, true); }},
    {"item cell, inactive", [](Flags f) { return itemCell(f, false); }},
    {"combo popup item", popupItem},
};

// The palette entries a word must be painted in; a part the word does not show stays invalid.
struct Entry
{
    VNStatusPalette::Colors colors;
    QColor sigma;
    QColor compare;
    QColor mark; // the one colour that stands for the word
};

Entry entryOf(const Word& word, bool enabled = true)
{
    Entry entry{VNStatusPalette::colors(word.look, enabled), VNStatusPalette::sigmaColor(word.sigma), QColor(),
                QColor()};
    if (word.flags == VNWidgetStatus::compareDifferent)
        entry.compare = VNStatusPalette::compareColor();
    entry.mark = entry.colors.isValid() ? entry.colors.frame : entry.sigma.isValid() ? entry.sigma : entry.compare;
    return entry;
}

QString check(const QImage& image, const char* part, const QRect& where, const QColor& expected)
{
    for (int y = where.top(); y <= where.bottom(); ++y) {
        for (int x = where.left(); x <= where.right(); ++x) {
            if (image.pixelColor(x, y) == expected)
                return QString();
        }
    }
    if (where.isEmpty() || !expected.isValid())
        return QString();
    return QStringLiteral("no %1 %2 at %3, found %4")
        .arg(QLatin1String(part), expected.name(), QStringLiteral("%1,%2").arg(where.x()).arg(where.y()),
             image.pixelColor(where.topLeft()).name());
}

// Every colour of the palette as a strip of swatches: one row per main look (frame, fill, text,
// then the disabled frame, fill and text), then the sigma bars and the compare mark.
QImage swatches()
{
    const int size = 16;
    const QMetaEnum looks = QMetaEnum::fromType<Look>();
    const QMetaEnum sigmas = QMetaEnum::fromType<SigmaLook>();
    QImage image(6 * size, looks.keyCount() * size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (int row = 1; row < looks.keyCount(); ++row) {
        const VNStatusPalette::Colors enabled = VNStatusPalette::colors(Look(looks.value(row)));
        const VNStatusPalette::Colors disabled = VNStatusPalette::colors(Look(looks.value(row)), false);
        const QColor colours[] = {enabled.frame,  enabled.fill,  enabled.text,
                                  disabled.frame, disabled.fill, disabled.text};
        for (int column = 0; column < 6; ++column)
            painter.fillRect(column * size, (row - 1) * size, size, size, colours[column]);
    }
    for (int column = 1; column < sigmas.keyCount(); ++column)
        painter.fillRect((column - 1) * size, (looks.keyCount() - 1) * size, size, size,
                         VNStatusPalette::sigmaColor(SigmaLook(sigmas.value(column))));
    painter.fillRect(5 * size, (looks.keyCount() - 1) * size, size, size, VNStatusPalette::compareColor());
    return image;
}
} // namespace

class StatusPaletteTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void paletteIsTheReviewedOne();
    void contrastRatioFollowsWcag();
    void looksStandOut_data();
    void looksStandOut();
    void familiesPaintThePalette_data();
    void familiesPaintThePalette();
};

void StatusPaletteTest::initTestCase()
{
    VNStyleSheet::applyTo(qApp);
}

void StatusPaletteTest::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The palette's colours are a design decision: a change must be looked at and accepted, like a
// screenshot. TWC_ACCEPT_PALETTE=1 writes the reference anew.
void StatusPaletteTest::paletteIsTheReviewedOne()
{
    const QString reference = QStringLiteral(TWC_SOURCE_DIR "/autotests/toolkit/statuspalette.png");
    const QImage painted = swatches();
    if (qEnvironmentVariableIsSet("TWC_ACCEPT_PALETTE"))
        QVERIFY(painted.save(reference));
    if (painted != QImage(reference).convertToFormat(QImage::Format_RGB32)) {
        const QString result = QStringLiteral(TWC_BINARY_DIR "/statuspalette.png");
        painted.save(result);
        QFAIL(qPrintable(QStringLiteral("the status palette (%1) differs from its reference %2; after an intended "
                                        "change, look at it and run this test with TWC_ACCEPT_PALETTE=1")
                             .arg(result, reference)));
    }
}

void StatusPaletteTest::contrastRatioFollowsWcag()
{
    // Reference values of the WCAG definition.
    QCOMPARE(VNStatusPalette::contrastRatio(Qt::black, Qt::white), 21.0);
    QCOMPARE(qRound(VNStatusPalette::contrastRatio(Qt::white, Qt::red) * 100), 400);
    QCOMPARE(qRound(VNStatusPalette::contrastRatio(Qt::blue, Qt::white) * 100), 859);
}

void StatusPaletteTest::looksStandOut_data()
{
    QTest::addColumn<int>("word");
    for (int word = 0; word < int(std::size(words)); ++word)
        QTest::newRow(words[word].name) << word;
}

// A frame or mark reads at 3:1 against the window around it (and the white of a view), a text at
// 4.5:1 on its fill; disabled widgets keep their frame and are exempt from the text rule.
void StatusPaletteTest::looksStandOut()
{
    QFETCH(int, word);
    const Entry entry = entryOf(words[word]);
    if (entry.colors.isValid()) {
        const double text = VNStatusPalette::contrastRatio(entry.colors.text, entry.colors.fill);
        QVERIFY2(text >= 4.5, qPrintable(QString::number(text)));
        QCOMPARE(entryOf(words[word], false).mark, entry.mark);
    }
    for (QPalette::ColorRole around : {QPalette::Window, QPalette::Base}) {
        const double mark = VNStatusPalette::contrastRatio(entry.mark, QApplication::palette().color(around));
        QVERIFY2(mark >= 3.0, qPrintable(QString::number(mark)));
    }
}

void StatusPaletteTest::familiesPaintThePalette_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("word");
    for (int family = 0; family < families.size(); ++family) {
        for (int word = 0; word < int(std::size(words)); ++word)
            QTest::addRow("%s: %s", families.at(family).first, words[word].name) << family << word;
    }
}

// What a designer compares: each family paints each part of a status in its palette entry, the
// disabled ones in the disabled variant.
void StatusPaletteTest::familiesPaintThePalette()
{
    QFETCH(int, family);
    QFETCH(int, word);
    const Painted painted = families.at(family).second(Flags(words[word].flags));
    const Entry entry = entryOf(words[word], painted.enabled);
    QStringList failures = {check(painted.image, "frame", painted.frame, entry.colors.frame),
                            check(painted.image, "fill", painted.fill, entry.colors.fill),
                            check(painted.image, "sigma", painted.sigma, entry.sigma),
                            check(painted.image, "compare mark", painted.compare, entry.compare),
                            check(painted.image, "mark", painted.mark, entry.mark)};
    failures.removeAll(QString());
    QVERIFY2(failures.isEmpty(), qPrintable(failures.join(QStringLiteral("; "))));
}

QTEST_MAIN(StatusPaletteTest)
#include "tst_statuspalette.moc"
