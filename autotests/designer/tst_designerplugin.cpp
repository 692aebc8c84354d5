// The Designer plugin as Qt Designer and uic see it: every toolkit widget offered under its
// library's group with the header forms include, created as the real toolkit class in the
// toolkit's look, and every form of the collection loading real toolkit widgets through it.

#include <VNProgressiveDisclosure.h>
#include <VNStyleSheet.h>

#include <QBuffer>
#include <QDirIterator>
#include <QFileInfo>
#include <QPluginLoader>
#include <QTabWidget>
#include <QUiLoader>
#include <QXmlStreamReader>
#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace {

// Every toolkit widget a form can hold, in name order; uic output includes the header named after
// the class without its namespace.
const QStringList offeredClasses =
    QStringLiteral("ColorDisplay VNActionsBar VNAnimatedOPTabBar VNAnimatedTabBar VNBarChart VNButton VNCheckBox "
                   "VNClearLineEdit VNComboBox VNComboBoxDoubleInput VNContainerListControl VNCurveInputControl "
                   "VNCustomMenuButton VNDisplayNeededInput VNDoubleSpinBox VNDragTreeWidget VNElementNavigationBar "
                   "VNElidedLabel VNFileMenuButton VNFilterComboBox VNFilterListView VNGroupableComboBox VNInfoArea "
                   "VNLabel VNLineEdit VNListToolBar VNListWidget VNModuleNavigation VNMultiProgressBar "
                   "VNProgressiveDisclosure VNProgressiveDisclosureBtn VNPushButton VNRadioButton "
                   "VNResizeableDisclosure VNResultSwitcher VNSeparator VNSlider VNSlidingCheckBox "
                   "VNStackControllerWidget VNTabBar VNTabWidget VNTableView VNTableWidget VNTaskBar VNToolTipButton "
                   "VNTreeView VNTwinPushButton VNValueEdit VNViewSwitcher Varnis::VNDendrogramWidget")
        .split(QLatin1Char(' '));

QString includeFileOf(const QString& className)
{
    return className.section(QLatin1String("::"), -1) + QLatin1String(".h");
}

// The widgets that hold the widgets a designer drops on them.
const QSet<QString> containers = {"VNListToolBar", "VNProgressiveDisclosure", "VNResizeableDisclosure", "VNTabWidget"};

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

void usePlugin(QUiLoader& loader)
{
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(QStringLiteral(TWC_DESIGNER_PLUGIN_FILE)).absolutePath());
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
    const QStringList& expected = offeredClasses;
    names.sort();
    QCOMPARE(names, expected);
    QCOMPARE(groups, QSet<QString>{QStringLiteral("VN Widgets")});
}

void tst_DesignerPlugin::createsTheRealWidgetInTheToolkitLook_data()
{
    QTest::addColumn<QString>("className");
    for (const QString& className : offeredClasses)
        QTest::newRow(qPrintable(className)) << className;
}

void tst_DesignerPlugin::createsTheRealWidgetInTheToolkitLook()
{
    QFETCH(QString, className);
    QDesignerCustomWidgetInterface* candidate = offer(className);
    QVERIFY(candidate);
    QCOMPARE(candidate->includeFile(), includeFileOf(className));
    QCOMPARE(candidate->isContainer(), containers.contains(className));
    QVERIFY(candidate->icon().availableSizes().contains(QSize(16, 16)));
    QVERIFY(candidate->toolTip().contains(className));
    QVERIFY(candidate->whatsThis().startsWith(className + QLatin1String(": ")));

    QWidget parent;
    QWidget* widget = candidate->createWidget(&parent);
    QCOMPARE(widget->parentWidget(), &parent);
    QCOMPARE(QLatin1String(widget->metaObject()->className()), className);
    QCOMPARE(widget->styleSheet(), VNStyleSheet::styleSheet());
}

// What Designer makes of the default markup of a new instance, as uic and the form loader do.
void tst_DesignerPlugin::newInstancesTakeTheirDefaults()
{
    QUiLoader loader;
    usePlugin(loader);
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
    QCOMPARE(instances["VNLabel"]->property("text").toString(), QStringLiteral("TextLabel"));
    QCOMPARE(instances["VNSlider"]->property("orientation").toInt(), int(Qt::Horizontal));
    QCOMPARE(instances["VNInfoArea"]->property("iconType").toInt(), 1); // Info
    QCOMPARE(instances["VNDisplayNeededInput"]->property("needed").toInt(), 3);
    QCOMPARE(qobject_cast<QTabWidget*>(instances["VNTabWidget"])->count(), 2);
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
    QCOMPARE(pages->currentIndex(), -1);
    QVERIFY(pages->canAddWidget());
    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("ProgressiveDisclosureContainer"));
    pages->addWidget(content);
    QVERIFY(disclosure->isAncestorOf(content));
    QCOMPARE(pages->count(), 1);
    QCOMPARE(pages->currentIndex(), 0);
    QCOMPARE(pages->widget(0), content);
    QCOMPARE(pages->widget(1), nullptr);
    QCOMPARE(disclosure->contentWidget(), content);
    QVERIFY(!pages->canAddWidget());
    QVERIFY(!pages->canRemove(0));

    // The content sits below the head, where it opens and closes.
    form.resize(300, 200);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QVERIFY(content->mapTo(disclosure, QPoint(0, 0)).y() > 0);
}

// Designers open the collection's forms with the plugin, and uic builds them.
void tst_DesignerPlugin::formsLoadRealToolkitWidgets()
{
    QUiLoader loader;
    usePlugin(loader);
    const QStringList forms = collectionForms();
    QVERIFY(forms.size() > 30);
    int toolkitWidgets = 0;
    for (const QString& path : forms) {
        const FormEntries entries = readForm(path);
        for (auto it = entries.includes.cbegin(); it != entries.includes.cend(); ++it) {
            QDesignerCustomWidgetInterface* candidate = offer(it.key());
            QVERIFY2(candidate, qPrintable(path + ": " + it.key() + " is not offered"));
            QVERIFY2(candidate->includeFile() == it.value(), qPrintable(path + ": " + it.key()));
            // uic calls the base class's setters, so it must be one.
            QWidget parent;
            QVERIFY2(candidate->createWidget(&parent)->inherits(qPrintable(entries.bases.value(it.key()))),
                     qPrintable(path + ": " + it.key() + " extends " + entries.bases.value(it.key())));
        }
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QScopedPointer<QWidget> form(loader.load(&file));
        QVERIFY2(form, qPrintable(path + ": " + loader.errorString()));
        for (const auto& instance : entries.customInstances) {
            QWidget* widget =
                form->objectName() == instance.second ? form.data() : form->findChild<QWidget*>(instance.second);
            QVERIFY2(widget && QLatin1String(widget->metaObject()->className()) == instance.first,
                     qPrintable(path + ": " + instance.second));
            ++toolkitWidgets;
        }
    }
    QVERIFY(toolkitWidgets > 100);
}

QTEST_MAIN(tst_DesignerPlugin)
#include "tst_designerplugin.moc"
