// The Designer plugin as Qt Designer and uic see it: every toolkit widget offered under its
// library's group with the header forms include, created as the real toolkit class in the
// toolkit's look, and every form of the collection loading real toolkit widgets through it.

#include <ColorDisplay.h>
#include <VNActionsBar.h>
#include <VNAnimatedOPTabBar.h>
#include <VNBarChart.h>
#include <VNButton.h>
#include <VNCheckBox.h>
#include <VNClearLineEdit.h>
#include <VNComboBoxDoubleInput.h>
#include <VNContainerListControl.h>
#include <VNCurveInputControl.h>
#include <VNCustomMenuButton.h>
#include <VNDendrogramWidget.h>
#include <VNDisplayNeededInput.h>
#include <VNDoubleSpinBox.h>
#include <VNElementNavigationBar.h>
#include <VNElidedLabel.h>
#include <VNFileMenuButton.h>
#include <VNFilterComboBox.h>
#include <VNFilterListView.h>
#include <VNGroupableComboBox.h>
#include <VNInfoArea.h>
#include <VNLabel.h>
#include <VNListToolBar.h>
#include <VNListWidget.h>
#include <VNModuleNavigation.h>
#include <VNMultiProgressBar.h>
#include <VNProgressiveDisclosureBtn.h>
#include <VNPushButton.h>
#include <VNRadioButton.h>
#include <VNResizeableDisclosure.h>
#include <VNResultSwitcher.h>
#include <VNSeparator.h>
#include <VNSlider.h>
#include <VNSlidingCheckBox.h>
#include <VNStackControllerWidget.h>
#include <VNStyleSheet.h>
#include <VNTabBar.h>
#include <VNTabWidget.h>
#include <VNTableView.h>
#include <VNTableWidget.h>
#include <VNTaskBar.h>
#include <VNToolTipButton.h>
#include <VNTreeView.h>
#include <VNTwinPushButton.h>
#include <VNValueEdit.h>
#include <VNViewSwitcher.h>

#include <QBuffer>
#include <QDirIterator>
#include <QFileInfo>
#include <QPluginLoader>
#include <QUiLoader>
#include <QXmlStreamReader>
#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace {

struct Offer
{
    const QMetaObject* metaObject;
    QString include;
    bool container;
};

// Every toolkit widget a form can hold, with the header uic output must include.
const QMap<QString, Offer>& expectedOffers()
{
    static const QMap<QString, Offer> offers = {
        {"VNButton", {&VNButton::staticMetaObject, "VNButton.h", false}},
        {"VNPushButton", {&VNPushButton::staticMetaObject, "VNPushButton.h", false}},
        {"VNTwinPushButton", {&VNTwinPushButton::staticMetaObject, "VNTwinPushButton.h", false}},
        {"VNToolTipButton", {&VNToolTipButton::staticMetaObject, "VNToolTipButton.h", false}},
        {"VNCustomMenuButton", {&VNCustomMenuButton::staticMetaObject, "VNCustomMenuButton.h", false}},
        {"VNFileMenuButton", {&VNFileMenuButton::staticMetaObject, "VNFileMenuButton.h", false}},
        {"VNCurveInputControl", {&VNCurveInputControl::staticMetaObject, "VNCurveInputControl.h", false}},
        {"VNProgressiveDisclosureBtn",
         {&VNProgressiveDisclosureBtn::staticMetaObject, "VNProgressiveDisclosureBtn.h", false}},
        {"VNLineEdit", {&VNLineEdit::staticMetaObject, "VNLineEdit.h", false}},
        {"VNClearLineEdit", {&VNClearLineEdit::staticMetaObject, "VNClearLineEdit.h", false}},
        {"VNValueEdit", {&VNValueEdit::staticMetaObject, "VNValueEdit.h", false}},
        {"VNDoubleSpinBox", {&VNDoubleSpinBox::staticMetaObject, "VNDoubleSpinBox.h", false}},
        {"VNSlider", {&VNSlider::staticMetaObject, "VNSlider.h", false}},
        {"VNCheckBox", {&VNCheckBox::staticMetaObject, "VNCheckBox.h", false}},
        {"VNSlidingCheckBox", {&VNSlidingCheckBox::staticMetaObject, "VNSlidingCheckBox.h", false}},
        {"VNRadioButton", {&VNRadioButton::staticMetaObject, "VNRadioButton.h", false}},
        {"VNComboBox", {&VNComboBox::staticMetaObject, "VNComboBox.h", false}},
        {"VNComboBoxDoubleInput", {&VNComboBoxDoubleInput::staticMetaObject, "VNComboBoxDoubleInput.h", false}},
        {"VNFilterComboBox", {&VNFilterComboBox::staticMetaObject, "VNFilterComboBox.h", false}},
        {"VNGroupableComboBox", {&VNGroupableComboBox::staticMetaObject, "VNGroupableComboBox.h", false}},
        {"VNLabel", {&VNLabel::staticMetaObject, "VNLabel.h", false}},
        {"VNElidedLabel", {&VNElidedLabel::staticMetaObject, "VNElidedLabel.h", false}},
        {"VNSeparator", {&VNSeparator::staticMetaObject, "VNSeparator.h", false}},
        {"VNInfoArea", {&VNInfoArea::staticMetaObject, "VNInfoArea.h", false}},
        {"ColorDisplay", {&ColorDisplay::staticMetaObject, "ColorDisplay.h", false}},
        {"VNBarChart", {&VNBarChart::staticMetaObject, "VNBarChart.h", false}},
        {"VNMultiProgressBar", {&VNMultiProgressBar::staticMetaObject, "VNMultiProgressBar.h", false}},
        {"VNDisplayNeededInput", {&VNDisplayNeededInput::staticMetaObject, "VNDisplayNeededInput.h", false}},
        {"VNTableView", {&VNTableView::staticMetaObject, "VNTableView.h", false}},
        {"VNTableWidget", {&VNTableWidget::staticMetaObject, "VNTableWidget.h", false}},
        {"VNTreeView", {&VNTreeView::staticMetaObject, "VNTreeView.h", false}},
        {"VNDragTreeWidget", {&VNDragTreeWidget::staticMetaObject, "VNDragTreeWidget.h", false}},
        {"Varnis::VNDendrogramWidget", {&Varnis::VNDendrogramWidget::staticMetaObject, "VNDendrogramWidget.h", false}},
        {"VNListWidget", {&VNListWidget::staticMetaObject, "VNListWidget.h", false}},
        {"VNFilterListView", {&VNFilterListView::staticMetaObject, "VNFilterListView.h", false}},
        {"VNContainerListControl", {&VNContainerListControl::staticMetaObject, "VNContainerListControl.h", false}},
        {"VNStackControllerWidget", {&VNStackControllerWidget::staticMetaObject, "VNStackControllerWidget.h", false}},
        {"VNTabBar", {&VNTabBar::staticMetaObject, "VNTabBar.h", false}},
        {"VNAnimatedTabBar", {&VNAnimatedTabBar::staticMetaObject, "VNAnimatedTabBar.h", false}},
        {"VNAnimatedOPTabBar", {&VNAnimatedOPTabBar::staticMetaObject, "VNAnimatedOPTabBar.h", false}},
        {"VNModuleNavigation", {&VNModuleNavigation::staticMetaObject, "VNModuleNavigation.h", false}},
        {"VNResultSwitcher", {&VNResultSwitcher::staticMetaObject, "VNResultSwitcher.h", false}},
        {"VNElementNavigationBar", {&VNElementNavigationBar::staticMetaObject, "VNElementNavigationBar.h", false}},
        {"VNViewSwitcher", {&VNViewSwitcher::staticMetaObject, "VNViewSwitcher.h", false}},
        {"VNTaskBar", {&VNTaskBar::staticMetaObject, "VNTaskBar.h", false}},
        {"VNActionsBar", {&VNActionsBar::staticMetaObject, "VNActionsBar.h", false}},
        {"VNListToolBar", {&VNListToolBar::staticMetaObject, "VNListToolBar.h", true}},
        {"VNProgressiveDisclosure", {&VNProgressiveDisclosure::staticMetaObject, "VNProgressiveDisclosure.h", true}},
        {"VNResizeableDisclosure", {&VNResizeableDisclosure::staticMetaObject, "VNResizeableDisclosure.h", true}},
        {"VNTabWidget", {&VNTabWidget::staticMetaObject, "VNTabWidget.h", true}},
    };
    return offers;
}

QStringList collectionForms()
{
    QStringList forms;
    for (const char* folder : {"launcher", "tests", "app"}) {
        QDirIterator it(QStringLiteral(TWC_SOURCE_DIR "/") + QLatin1String(folder), {"*.ui"}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            forms << it.next();
    }
    forms.sort();
    return forms;
}

struct FormEntries
{
    QMap<QString, QString> includes;                // custom class -> header
    QMap<QString, QString> bases;                   // custom class -> the class it extends
    QList<QPair<QString, QString>> customInstances; // (class, object name)
};

FormEntries readForm(const QString& path)
{
    QFile file(path);
    FormEntries entries;
    if (!file.open(QIODevice::ReadOnly))
        return entries;
    QXmlStreamReader xml(&file);
    QList<QPair<QString, QString>> instances;
    QString customClass;
    while (xml.readNextStartElement() || !xml.atEnd()) {
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("widget"))
            instances.append({xml.attributes().value("class").toString(), xml.attributes().value("name").toString()});
        else if (xml.name() == QLatin1String("class"))
            customClass = xml.readElementText();
        else if (xml.name() == QLatin1String("extends"))
            entries.bases.insert(customClass, xml.readElementText());
        else if (xml.name() == QLatin1String("header"))
            entries.includes.insert(customClass, xml.readElementText());
    }
    for (const auto& instance : instances) {
        if (entries.includes.contains(instance.first))
            entries.customInstances.append(instance);
    }
    return entries;
}

// The part of Designer's core that holds the extensions of plugins.
class DesignerCore : public QDesignerFormEditorInterface
{
public:
    DesignerCore() { setExtensionManager(new QExtensionManager(this)); }
    QExtensionManager* manager() const { return qobject_cast<QExtensionManager*>(extensionManager()); }
};

} // namespace

class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void offersEveryToolkitWidgetUnderItsLibrary();
    void createsTheRealWidgetInTheToolkitLook_data();
    void createsTheRealWidgetInTheToolkitLook();
    void newInstancesTakeTheirDefaults();
    void disclosureContentIsTheDesignerPage();
    void formsNameOfferedClassesAndHeaders();
    void formsLoadRealToolkitWidgets();

private:
    QDesignerCustomWidgetInterface* offer(const QString& className) const;

    QList<QDesignerCustomWidgetInterface*> m_offers;
};

void tst_DesignerPlugin::initTestCase()
{
    QPluginLoader loader(QStringLiteral(TWC_DESIGNER_PLUGIN_FILE));
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    QVERIFY(collection);
    m_offers = collection->customWidgets();
}

QDesignerCustomWidgetInterface* tst_DesignerPlugin::offer(const QString& className) const
{
    for (QDesignerCustomWidgetInterface* candidate : m_offers) {
        if (candidate->name() == className)
            return candidate;
    }
    return nullptr;
}

void tst_DesignerPlugin::offersEveryToolkitWidgetUnderItsLibrary()
{
    QStringList names;
    QSet<QString> groups;
    for (QDesignerCustomWidgetInterface* candidate : m_offers) {
        names << candidate->name();
        groups << candidate->group();
    }
    QStringList expected = expectedOffers().keys();
    names.sort();
    QCOMPARE(names, expected);
    QCOMPARE(groups, QSet<QString>{QStringLiteral("VN Widgets")});
}

void tst_DesignerPlugin::createsTheRealWidgetInTheToolkitLook_data()
{
    QTest::addColumn<QString>("className");
    for (const QString& className : expectedOffers().keys())
        QTest::newRow(qPrintable(className)) << className;
}

void tst_DesignerPlugin::createsTheRealWidgetInTheToolkitLook()
{
    QFETCH(QString, className);
    QDesignerCustomWidgetInterface* candidate = offer(className);
    QVERIFY(candidate);
    const Offer& expected = expectedOffers()[className];
    QCOMPARE(candidate->includeFile(), expected.include);
    QCOMPARE(candidate->isContainer(), expected.container);
    QVERIFY(candidate->icon().availableSizes().contains(QSize(16, 16)));
    QVERIFY(candidate->toolTip().contains(className));
    QVERIFY(candidate->whatsThis().startsWith(className + QLatin1String(": ")));

    QXmlStreamReader dom(candidate->domXml());
    QVERIFY(dom.readNextStartElement() && dom.name() == QLatin1String("ui"));
    QVERIFY(dom.readNextStartElement() && dom.name() == QLatin1String("widget"));
    QCOMPARE(dom.attributes().value("class").toString(), className);
    QVERIFY(!dom.attributes().value("name").isEmpty());

    QWidget parent;
    QWidget* widget = candidate->createWidget(&parent);
    QVERIFY(widget);
    QCOMPARE(widget->parentWidget(), &parent);
    QCOMPARE(widget->metaObject(), expected.metaObject);
    QCOMPARE(widget->styleSheet(), VNStyleSheet::styleSheet());
}

// What Designer makes of the default markup of a new instance, as uic and the form loader do.
void tst_DesignerPlugin::newInstancesTakeTheirDefaults()
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(QStringLiteral(TWC_DESIGNER_PLUGIN_FILE)).absolutePath());
    static QStringList warnings;
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
            if (type != QtDebugMsg)
                warnings << message;
        });
    QWidget form;
    QMap<QString, QWidget*> instances;
    for (QDesignerCustomWidgetInterface* candidate : m_offers) {
        QBuffer markup;
        markup.setData(candidate->domXml().toUtf8());
        instances.insert(candidate->name(), loader.load(&markup, &form));
    }
    qInstallMessageHandler(previous);
    QCOMPARE(warnings, QStringList());
    for (auto it = instances.cbegin(); it != instances.cend(); ++it) {
        QVERIFY2(it.value(), qPrintable(it.key()));
        QCOMPARE(QLatin1String(it.value()->metaObject()->className()), it.key());
    }
    QCOMPARE(qobject_cast<VNLabel*>(instances["VNLabel"])->text(), QStringLiteral("TextLabel"));
    QCOMPARE(qobject_cast<VNSlider*>(instances["VNSlider"])->orientation(), Qt::Horizontal);
    QCOMPARE(qobject_cast<VNInfoArea*>(instances["VNInfoArea"])->iconType(), VNInfoArea::Info);
    QCOMPARE(qobject_cast<VNDisplayNeededInput*>(instances["VNDisplayNeededInput"])->needed(), 3);
    QCOMPARE(qobject_cast<VNTabWidget*>(instances["VNTabWidget"])->count(), 2);
    auto* disclosure = qobject_cast<VNProgressiveDisclosure*>(instances["VNProgressiveDisclosure"]);
    QCOMPARE(disclosure->getWidgetCaption(), QStringLiteral("Caption"));
    QCOMPARE(disclosure->contentWidget()->objectName(), QStringLiteral("ProgressiveDisclosureContainer"));
}

void tst_DesignerPlugin::disclosureContentIsTheDesignerPage()
{
    DesignerCore core;
    QExtensionManager* manager = core.manager();
    QDesignerCustomWidgetInterface* candidate = offer(QStringLiteral("VNProgressiveDisclosure"));
    candidate->initialize(&core);

    QWidget form;
    auto* disclosure = qobject_cast<VNProgressiveDisclosure*>(candidate->createWidget(&form));
    auto* pages = qt_extension<QDesignerContainerExtension*>(manager, disclosure);
    QVERIFY(pages);
    QCOMPARE(pages->count(), 0);
    QVERIFY(pages->canAddWidget());
    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("ProgressiveDisclosureContainer"));
    pages->addWidget(content);
    QVERIFY(disclosure->isAncestorOf(content));
    QCOMPARE(pages->count(), 1);
    QCOMPARE(pages->widget(0), content);
    QCOMPARE(disclosure->contentWidget(), content);
    QVERIFY(!pages->canAddWidget());
    QVERIFY(!pages->canRemove(0));

    // The content sits below the head, where it opens and closes.
    form.resize(300, 200);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QVERIFY(content->mapTo(disclosure, QPoint(0, 0)).y() > 0);
}

void tst_DesignerPlugin::formsNameOfferedClassesAndHeaders()
{
    const QStringList forms = collectionForms();
    QVERIFY(forms.size() > 30);
    for (const QString& form : forms) {
        const FormEntries entries = readForm(form);
        for (auto it = entries.includes.cbegin(); it != entries.includes.cend(); ++it) {
            QDesignerCustomWidgetInterface* candidate = offer(it.key());
            QVERIFY2(candidate, qPrintable(form + ": " + it.key() + " is not offered"));
            QVERIFY2(candidate->includeFile() == it.value(), qPrintable(form + ": " + it.key()));
            // uic calls the base class's setters, so it must be one.
            QWidget parent;
            QVERIFY2(candidate->createWidget(&parent)->inherits(qPrintable(entries.bases.value(it.key()))),
                     qPrintable(form + ": " + it.key() + " extends " + entries.bases.value(it.key())));
        }
    }
}

void tst_DesignerPlugin::formsLoadRealToolkitWidgets()
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(QStringLiteral(TWC_DESIGNER_PLUGIN_FILE)).absolutePath());
    int toolkitWidgets = 0;
    for (const QString& path : collectionForms()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QScopedPointer<QWidget> form(loader.load(&file));
        QVERIFY2(form, qPrintable(path + ": " + loader.errorString()));
        for (const auto& instance : readForm(path).customInstances) {
            QWidget* widget =
                form->objectName() == instance.second ? form.data() : form->findChild<QWidget*>(instance.second);
            QVERIFY2(widget, qPrintable(path + ": " + instance.second));
            QVERIFY2(QLatin1String(widget->metaObject()->className()) == instance.first,
                     qPrintable(path + ": " + instance.second + " is a " + widget->metaObject()->className()));
            ++toolkitWidgets;
        }
    }
    QVERIFY(toolkitWidgets > 100);
}

QTEST_MAIN(tst_DesignerPlugin)
#include "tst_designerplugin.moc"
