#include "TestLayoutHelper.h"

#include <LayoutVisualizationFilter.h>
#include <VNLayoutHelper.h>

TestLayoutHelper::TestLayoutHelper(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
    , m_layoutHelper(nullptr)
{
    // The direction buttons carry their elide mode in a dynamic property.
    qRegisterMetaType<Qt::TextElideMode>("Qt::TextElideMode");
    ui.setupUi(this);
    m_visualization = new LayoutVisualizationFilter(this);
    registerLayouts();
}

TestLayoutHelper::~TestLayoutHelper() = default;

void TestLayoutHelper::registerLayouts()
{
    if (!m_layoutHelper)
        m_layoutHelper = new VNLayoutHelper(this);
    m_layoutHelper->removeAllLayouts();
    m_layoutHelper->addLayout(ui.m_layout1, nullptr);
    m_layoutHelper->addLayout(ui.m_layout2, nullptr);
    m_layoutHelper->addLayout(ui.m_layout3, nullptr);
    m_layoutHelper->addLayout(ui.m_layout4, ui.m_labelForHint1);
    m_layoutHelper->addLayout(ui.m_directionLayout, nullptr);
    m_layoutHelper->addLayout(ui.m_directionLayoutWithoutDisclosure, nullptr);
    m_layoutHelper->help();
}

void TestLayoutHelper::on_m_displayLayouts_clicked(bool checked)
{
    if (checked)
        installEventFilter(m_visualization);
    else
        removeEventFilter(m_visualization);
    update();
}

void TestLayoutHelper::on_m_removeAndAddAllAgain_clicked()
{
    registerLayouts();
}
