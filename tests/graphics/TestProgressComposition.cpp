#include "TestProgressComposition.h"

#include <VNMultiProgressBar.h>

#include <QSignalBlocker>
#include <QTimerEvent>

namespace {
const int circularInterval = 3000;
const int linearInterval = 200;
const int stepIncrement = 10;
} // namespace

TestProgressComposition::TestProgressComposition(QWidget* parent)
    : QDialog(parent)
{
    setupUi(this);
    // The bar starts in the look the form's check box shows.
    m_multiProgress->setCircular(m_circular->isChecked());
    m_multiProgress->setStretchMode(stretchMode->currentIndex());
}

TestProgressComposition::~TestProgressComposition() = default;

void TestProgressComposition::on_m_ops_valueChanged(int)
{
    setupOperations();
}

void TestProgressComposition::on_m_prefix_editingFinished()
{
    setupOperations();
}

void TestProgressComposition::on_setup_clicked(bool)
{
    setupOperations();
}

void TestProgressComposition::setupOperations()
{
    stopTimer();
    QStringList items;
    for (int k = 1; k <= m_ops->value(); ++k)
        items.append(QStringLiteral("%1%2").arg(m_prefix->text()).arg(10 * k));
    m_multiProgress->setProgressItems(items);
    refresh();
}

void TestProgressComposition::refresh()
{
    {
        const QSignalBlocker blockOps(m_ops);
        const QSignalBlocker blockCurrent(m_current);
        m_ops->setValue(m_multiProgress->progressItemsCount());
        m_current->setValue(m_multiProgress->current());
    }
    const QSignalBlocker blockCircular(m_circular);
    m_circular->setChecked(m_multiProgress->isCircular());
}

void TestProgressComposition::stopTimer()
{
    if (m_timerId != 0) {
        killTimer(m_timerId);
        m_timerId = 0;
    }
}

void TestProgressComposition::on_startAnimation_clicked()
{
    if (m_timerId != 0)
        return;
    animationStep();
    m_timerId = startTimer(m_multiProgress->isCircular() ? circularInterval : linearInterval, Qt::CoarseTimer);
}

void TestProgressComposition::on_stopAnimation_clicked()
{
    if (m_timerId == 0)
        return;
    stopTimer();
    m_multiProgress->setCurrent(-1);
    refresh();
}

void TestProgressComposition::on_m_current_valueChanged(int value)
{
    stopTimer();
    if (value >= -1 && value < m_multiProgress->progressItemsCount())
        m_multiProgress->setCurrent(value);
    refresh();
}

void TestProgressComposition::on_step_clicked()
{
    stopTimer();
    const int next = m_multiProgress->current() + 1;
    if (next < m_multiProgress->progressItemsCount())
        m_multiProgress->setCurrent(next);
    refresh();
}

void TestProgressComposition::on_resizeDefault_clicked()
{
    resize(450, height());
}

void TestProgressComposition::on_m_circular_toggled(bool on)
{
    m_multiProgress->setCircular(on);
    refresh();
}

void TestProgressComposition::on_stepSingle_clicked()
{
    m_multiProgress->stepCurrent(m_multiProgress->currentStep() + stepIncrement);
}

void TestProgressComposition::on_stretchMode_currentIndexChanged(int index)
{
    m_multiProgress->setStretchMode(index);
}

void TestProgressComposition::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_timerId)
        animationStep();
    else
        QDialog::timerEvent(event);
}

// The circular bar moves one operation per tick; the others fill the current operation in steps
// of ten and leave the move to the next operation to the bar.
void TestProgressComposition::animationStep()
{
    const int count = m_multiProgress->progressItemsCount();
    const int current = m_multiProgress->current();
    if (m_multiProgress->isCircular()) {
        if (current + 1 < count) {
            m_multiProgress->setCurrent(current + 1);
        } else {
            stopTimer();
            m_multiProgress->setCurrent(-1);
        }
        refresh();
        return;
    }
    if (current < 0) {
        m_multiProgress->setCurrent(0);
        refresh();
        return;
    }
    const bool lastComplete =
        current == count - 1 && m_multiProgress->currentStep() >= m_multiProgress->getRange(current).second;
    if (lastComplete) {
        stopTimer();
        m_multiProgress->setCurrent(-1);
    } else {
        m_multiProgress->stepCurrent(m_multiProgress->currentStep() + stepIncrement);
    }
    refresh();
}
