#include "VNDoubleSpinBox.h"

#include "QtCompat.h"

#include "VNFormatter.h"
#include "VNStatusPalette.h"

#include <QApplication>
#include <QLineEdit>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionSpinBox>
#include <QToolTip>
#include <QtMath>

#include <cmath>

namespace {
// The base class rounds every value to its decimals; at its maximum nothing is lost, and the
// formatter alone decides how many digits are shown.
constexpr int baseDecimals = 323;
// Pixels of sideways mouse movement that turn a press in the text into a slide, and pixels per step.
constexpr int slideThreshold = 4;
constexpr int pixelsPerStep = 4;
constexpr qreal smallestFitPointSize = 5.0;
const QChar sigmaSign(0x03c3);

// Characters (digits and unit) that each width class is made for.
int charactersOf(VNDoubleSpinBox::InputFieldSize size)
{
    switch (size) {
    case VNDoubleSpinBox::Small:
        return 9;
    case VNDoubleSpinBox::Medium:
        return 13;
    case VNDoubleSpinBox::Large:
        return 18;
    default:
        return 0;
    }
}

// Forms set the width class by name; buddy signals carry the field.
void registerMetaTypes()
{
    static const bool registered = [] {
        qRegisterMetaType<VNDoubleSpinBox::InputFieldSize>("VNDoubleSpinBox::InputFieldSize");
        qRegisterMetaType<VNDoubleSpinBox*>();
        return true;
    }();
    Q_UNUSED(registered)
}
} // namespace

VNDoubleSpinBox::VNDoubleSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent)
    , VNWidgetInterface(this)
    , m_formatter(new VNFormatter(this))
{
    registerMetaTypes();
    m_defaultSizePolicy = sizePolicy();
    QDoubleSpinBox::setDecimals(baseDecimals);
    // Values are taken when an edit ends: on the way to "1 cm" the text reads "1", which must not
    // become a value of one display unit.
    setKeyboardTracking(false);
    lineEdit()->installEventFilter(this);
    connect(m_formatter, &VNFormatter::settingsChanged, this, &VNDoubleSpinBox::refreshText);
    connect(this, &QDoubleSpinBox::textChanged, this, [this] {
        fitFont();
        if (m_inputFieldSize == Content)
            updateGeometry();
    });
    refreshText();
}

VNDoubleSpinBox::~VNDoubleSpinBox()
{
    if (m_sliding)
        QApplication::restoreOverrideCursor();
}

QString VNDoubleSpinBox::valueUnit() const
{
    return m_formatter->valueUnit();
}

void VNDoubleSpinBox::setValueUnit(const QString& unit)
{
    m_formatter->setValueUnit(unit);
}

QString VNDoubleSpinBox::displayUnit() const
{
    return m_formatter->displayUnit();
}

void VNDoubleSpinBox::setDisplayUnit(const QString& unit, bool overrideGlobal)
{
    m_formatter->setDisplayUnit(unit, overrideGlobal);
}

bool VNDoubleSpinBox::useGlobalDisplayUnit() const
{
    return m_formatter->useGlobalDisplayUnit();
}

void VNDoubleSpinBox::setUseGlobalDisplayUnit(bool use)
{
    m_formatter->setUseGlobalDisplayUnit(use);
}

bool VNDoubleSpinBox::isEmpty() const
{
    return m_formatter->isEmpty();
}

void VNDoubleSpinBox::setEmpty(bool empty)
{
    m_formatter->setEmpty(empty);
}

int VNDoubleSpinBox::decimals() const
{
    return m_formatter->decimals();
}

void VNDoubleSpinBox::setDecimals(int decimals)
{
    m_formatter->setDecimals(decimals);
}

void VNDoubleSpinBox::setFactor(double factor)
{
    // A zero factor would show every value as 0 and could not be read back.
    if (factor == 0.0 || !qIsFinite(factor)) {
        qWarning("VNDoubleSpinBox %s: the factor must be a finite number other than 0; %g is ignored, the factor "
                 "stays %g",
                 qPrintable(objectName()), factor, m_factor);
        return;
    }
    if (factor == m_factor)
        return;
    m_factor = factor;
    refreshText();
    emit factorChanged(factor);
}

void VNDoubleSpinBox::setFitText(bool fit)
{
    if (fit == m_fitText)
        return;
    m_fitText = fit;
    fitFont();
    emit fitTextChanged(fit);
}

void VNDoubleSpinBox::setStepRounding(bool rounding)
{
    if (rounding == m_stepRounding)
        return;
    m_stepRounding = rounding;
    emit stepRoundingChanged(rounding);
}

void VNDoubleSpinBox::setInputFieldSize(InputFieldSize size)
{
    if (size == m_inputFieldSize)
        return;
    m_inputFieldSize = size;
    if (size == Ignore) {
        setSizePolicy(m_defaultSizePolicy);
    } else {
        QSizePolicy policy = m_defaultSizePolicy;
        policy.setHorizontalPolicy(QSizePolicy::Fixed);
        setSizePolicy(policy);
    }
    updateGeometry();
    emit inputFieldSizeChanged(size);
}

void VNDoubleSpinBox::setInputFieldWidth(int size)
{
    if (size < Ignore || size > Large) {
        qWarning("VNDoubleSpinBox %s: %d is no input field size (-2 to 2); the size stays %d", qPrintable(objectName()),
                 size, int(m_inputFieldSize));
        return;
    }
    setInputFieldSize(static_cast<InputFieldSize>(size));
}

void VNDoubleSpinBox::setPaintFrame(bool paint)
{
    if (paint == m_paintFrame)
        return;
    m_paintFrame = paint;
    update();
    emit paintFrameChanged(paint);
}

void VNDoubleSpinBox::setReadOnly(bool readOnly)
{
    if (readOnly == isReadOnly())
        return;
    QDoubleSpinBox::setReadOnly(readOnly);
    // The style sheet selects the read-only look on the property.
    VNWidgetStatus::repolish(this);
    emit readOnlyChanged(readOnly);
}

void VNDoubleSpinBox::setPrefix(const QString& prefix)
{
    if (prefix == m_prefix)
        return;
    m_prefix = prefix;
    refreshText();
}

void VNDoubleSpinBox::setSuffix(const QString& suffix)
{
    if (suffix == m_suffix)
        return;
    m_suffix = suffix;
    refreshText();
}

// A negative factor turns the range around: the smallest value shows as the largest number.
double VNDoubleSpinBox::minimumInDisplayUnit() const
{
    return toDisplay(m_factor < 0 ? maximum() : minimum());
}

void VNDoubleSpinBox::setMinimumInDisplayUnit(double minimum)
{
    if (m_factor < 0)
        setMaximum(fromDisplay(minimum));
    else
        setMinimum(fromDisplay(minimum));
}

double VNDoubleSpinBox::maximumInDisplayUnit() const
{
    return toDisplay(m_factor < 0 ? minimum() : maximum());
}

void VNDoubleSpinBox::setMaximumInDisplayUnit(double maximum)
{
    if (m_factor < 0)
        setMinimum(fromDisplay(maximum));
    else
        setMaximum(fromDisplay(maximum));
}

double VNDoubleSpinBox::valueInDisplayUnit() const
{
    return toDisplay(value());
}

QString VNDoubleSpinBox::textFromValue(double value) const
{
    const QString number = m_formatter->textFromDisplayValue(toDisplay(value), true);
    if (number.isEmpty())
        return QString();
    return m_prefix + number + m_suffix;
}

double VNDoubleSpinBox::valueFromText(const QString& text) const
{
    // The shown text stands for the exact value, not for its rounded digits.
    if (text == textFromValue(value()))
        return value();
    bool ok = false;
    const double parsed = parse(text, &ok);
    return ok ? parsed : value();
}

QValidator::State VNDoubleSpinBox::validate(QString& input, int& pos) const
{
    Q_UNUSED(pos)
    if (numberText(input).isEmpty())
        return isEmpty() ? QValidator::Acceptable : QValidator::Intermediate;
    if (input == textFromValue(value()))
        return QValidator::Acceptable;
    // Everything may be typed; what cannot be read is corrected when the edit ends.
    bool ok = false;
    const double parsed = parse(input, &ok);
    if (!ok || parsed < minimum() || parsed > maximum())
        return QValidator::Intermediate;
    return QValidator::Acceptable;
}

void VNDoubleSpinBox::fixup(QString& input) const
{
    bool ok = false;
    const double parsed = parse(input, &ok);
    if (ok) {
        if (correctionMode() == CorrectToNearestValue)
            input = textFromValue(qBound(minimum(), parsed, maximum()));
        return;
    }
    const QString previous = textFromValue(value());
    if (!numberText(input).isEmpty() && isVisible()) {
        const QString unit = displayUnit();
        bool ambiguous = false;
        VNFormatter::numberFromText(numberText(input).section(QLatin1Char(' '), 0, 0), nullptr, &ambiguous);
        const QString message = ambiguous ? tr("\"%1\" can be read in more than one way: write decimals with \"%2\" or "
                                               "\".\" and no digit grouping; the value stays %3.")
                                                .arg(input, QLocale().decimalPoint(), previous)
                                : unit.isEmpty()
                                    ? tr("\"%1\" is not a number; the value stays %2.").arg(input, previous)
                                    : tr("\"%1\" is not a number in %2 or a unit of its kind; the value stays %3.")
                                          .arg(input, unit, previous);
        auto* self = const_cast<VNDoubleSpinBox*>(this);
        QToolTip::showText(mapToGlobal(QPoint(0, height())), message, self);
    }
    // A text without a number has no nearest value: keep the previous one, as the message says.
    if (correctionMode() == CorrectToNearestValue)
        input = previous;
}

void VNDoubleSpinBox::stepBy(int steps)
{
    double start = value();
    const QString shown = lineEdit()->displayText();
    if (shown != textFromValue(start)) {
        // Typed but not yet taken over (keyboard tracking off): step from what the user sees.
        bool ok = false;
        const double typed = parse(shown, &ok);
        if (ok)
            start = typed;
    }
    if (isEmpty())
        setEmpty(false);
    const double stepped = fromDisplay(steppedValue(toDisplay(start), steps, singleStep()));
    setValue(boundedStep(start, stepped));
    selectAll();
}

QAbstractSpinBox::StepEnabled VNDoubleSpinBox::stepEnabled() const
{
    if (isEmpty() && !isReadOnly())
        return StepUpEnabled | StepDownEnabled;
    const StepEnabled enabled = QDoubleSpinBox::stepEnabled();
    if (m_factor > 0 || wrapping())
        return enabled;
    // The arrows act on the number shown, which runs against the value.
    StepEnabled swapped = StepNone;
    if (enabled & StepUpEnabled)
        swapped |= StepDownEnabled;
    if (enabled & StepDownEnabled)
        swapped |= StepUpEnabled;
    return swapped;
}

QSize VNDoubleSpinBox::sizeHint() const
{
    switch (m_inputFieldSize) {
    case Ignore:
        return QDoubleSpinBox::sizeHint();
    case Content: {
        const QFontMetrics metrics(font());
        const int textWidth =
            qMax(metrics.horizontalAdvance(lineEdit()->displayText()), 2 * metrics.horizontalAdvance(QLatin1Char('0')));
        return QSize(fieldWidthFor(textWidth), QDoubleSpinBox::sizeHint().height());
    }
    default: {
        const int digitWidth = QFontMetrics(font()).horizontalAdvance(QLatin1Char('0'));
        return QSize(fieldWidthFor(charactersOf(m_inputFieldSize) * digitWidth), QDoubleSpinBox::sizeHint().height());
    }
    }
}

QSize VNDoubleSpinBox::minimumSizeHint() const
{
    if (m_inputFieldSize == Ignore)
        return QDoubleSpinBox::minimumSizeHint();
    return sizeHint();
}

int VNDoubleSpinBox::fieldWidthFor(int textWidth) const
{
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    // As the base class: two pixels for the blinking cursor, then the style adds frame and buttons.
    const QSize content(textWidth + 2 + sigmaMarkerWidth(), lineEdit()->sizeHint().height());
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this).width();
}

bool VNDoubleSpinBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != lineEdit())
        return QDoubleSpinBox::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return handleEditMousePress(static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
        return handleEditMouseMove(static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
        return handleEditMouseRelease(static_cast<QMouseEvent*>(event));
    case QEvent::Paint:
        if (sigmaMarkerWidth() > 0) {
            // Let the edit paint its text first, then draw the marker into the margin kept free for it.
            static_cast<QObject*>(lineEdit())->event(event);
            paintSigmaMarker(lineEdit());
            return true;
        }
        break;
    default:
        break;
    }
    return QDoubleSpinBox::eventFilter(watched, event);
}

bool VNDoubleSpinBox::handleEditMousePress(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || isReadOnly())
        return false;
    m_pressed = true;
    m_pressPosition = QtCompat::globalPosition(event);
    m_pressValue = value();
    return false; // the edit still places its cursor
}

bool VNDoubleSpinBox::handleEditMouseMove(QMouseEvent* event)
{
    if (!m_pressed || !(event->buttons() & Qt::LeftButton))
        return false;
    const QPoint moved = QtCompat::globalPosition(event) - m_pressPosition;
    if (!m_sliding) {
        if (std::abs(moved.x()) < slideThreshold || std::abs(moved.x()) <= std::abs(moved.y()))
            return false;
        m_sliding = true;
        lineEdit()->deselect();
        setEmpty(false);
        QApplication::setOverrideCursor(Qt::SizeHorCursor);
    }
    double step = singleStep();
    if (event->modifiers() & Qt::ShiftModifier)
        step /= 10.0;
    else if (event->modifiers() & Qt::ControlModifier)
        step *= 10.0;
    const int steps = moved.x() / pixelsPerStep;
    const double slid = fromDisplay(steppedValue(toDisplay(m_pressValue), steps, step));
    setValue(qBound(minimum(), slid, maximum()));
    return true;
}

bool VNDoubleSpinBox::handleEditMouseRelease(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return false;
    m_pressed = false;
    if (!m_sliding)
        return false;
    m_sliding = false;
    QApplication::restoreOverrideCursor();
    // A slide is a finished edit, like a typed value confirmed with Enter.
    emit editingFinished();
    return true;
}

void VNDoubleSpinBox::paintEvent(QPaintEvent* event)
{
    QDoubleSpinBox::paintEvent(event);
    if (!m_paintFrame)
        return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void VNDoubleSpinBox::resizeEvent(QResizeEvent* event)
{
    QDoubleSpinBox::resizeEvent(event);
    fitFont();
}

void VNDoubleSpinBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        leaveEmptyStateForTypedText();
    QDoubleSpinBox::keyPressEvent(event);
}

void VNDoubleSpinBox::focusOutEvent(QFocusEvent* event)
{
    leaveEmptyStateForTypedText();
    QDoubleSpinBox::focusOutEvent(event);
}

void VNDoubleSpinBox::statusChanged()
{
    lineEdit()->setTextMargins(sigmaMarkerWidth(), 0, 0, 0);
    lineEdit()->update();
    updateGeometry();
    fitFont();
}

double VNDoubleSpinBox::toDisplay(double value) const
{
    return m_formatter->valueToDisplayValue(value) * m_factor;
}

double VNDoubleSpinBox::fromDisplay(double displayValue) const
{
    return m_formatter->displayValueToValue(displayValue / m_factor);
}

QString VNDoubleSpinBox::numberText(const QString& text) const
{
    QString number = text;
    if (!m_prefix.isEmpty() && number.startsWith(m_prefix))
        number.remove(0, m_prefix.size());
    if (!m_suffix.isEmpty() && number.endsWith(m_suffix))
        number.chop(m_suffix.size());
    return number.trimmed();
}

double VNDoubleSpinBox::parse(const QString& text, bool* ok) const
{
    const QString number = numberText(text);
    // A plain number is what the field shows: display unit times factor.
    const double shown = VNFormatter::numberFromText(number, ok);
    if (*ok)
        return fromDisplay(shown);
    // A number with a unit is a quantity of its own, which the factor does not scale.
    const double quantity = m_formatter->valueFromText(number, ok);
    return *ok ? quantity : value();
}

double VNDoubleSpinBox::steppedValue(double start, double steps, double step) const
{
    if (!m_stepRounding || step <= 0.0)
        return start + steps * step;
    // Land on the grid of steps: from 1.23 with step 0.5, up gives 1.5 and down gives 1.0.
    constexpr double tolerance = 1e-9;
    const double position = start / step;
    const double onGrid = steps > 0 ? std::floor(position + tolerance) : std::ceil(position - tolerance);
    return (onGrid + steps) * step;
}

double VNDoubleSpinBox::boundedStep(double oldValue, double newValue) const
{
    // As QAbstractSpinBox: with wrapping, a step past a limit that the value already sat on
    // jumps to the other limit.
    if (newValue > maximum())
        return wrapping() && oldValue >= maximum() ? minimum() : maximum();
    if (newValue < minimum())
        return wrapping() && oldValue <= minimum() ? maximum() : minimum();
    return newValue;
}

void VNDoubleSpinBox::leaveEmptyStateForTypedText()
{
    if (!isEmpty())
        return;
    bool ok = false;
    const double typed = parse(lineEdit()->displayText(), &ok);
    if (!ok)
        return;
    setEmpty(false);
    setValue(qBound(minimum(), typed, maximum()));
}

void VNDoubleSpinBox::refreshText()
{
    // Setting the base class prefix (always empty here) makes the spin box render its text again
    // and forget its cached size hints.
    QDoubleSpinBox::setPrefix(QString());
    updateGeometry();
    fitFont();
}

void VNDoubleSpinBox::fitFont()
{
    QLineEdit* edit = lineEdit();
    if (!m_fitText) {
        if (edit->testAttribute(Qt::WA_SetFont))
            edit->setFont(QFont()); // back to the field's own font
        return;
    }
    // Before it is shown the field has no size of its own yet, and every smaller size tried would load
    // a font; showing sends the resize event that fits the text to the real width.
    if (testAttribute(Qt::WA_PendingResizeEvent))
        return;
    QFont fitted = font();
    const QMargins margins = edit->textMargins();
    const int available = edit->contentsRect().width() - margins.left() - margins.right() - 4;
    const QString text = edit->displayText();
    while (fitted.pointSizeF() > smallestFitPointSize && QFontMetrics(fitted).horizontalAdvance(text) > available)
        fitted.setPointSizeF(fitted.pointSizeF() - 0.5);
    if (fitted != edit->font())
        edit->setFont(fitted);
}

int VNDoubleSpinBox::sigmaMarkerWidth() const
{
    if (!isSigmaEnabled() && !isSigmaActive())
        return 0;
    return QFontMetrics(font()).horizontalAdvance(sigmaSign) + 9;
}

void VNDoubleSpinBox::paintSigmaMarker(QWidget* edit)
{
    QPainter painter(edit);
    painter.setRenderHint(QPainter::Antialiasing);
    const int width = sigmaMarkerWidth();
    const QRect marker(1, 2, width - 4, edit->height() - 4);
    QFont bold = edit->font();
    bold.setBold(isSigmaActive());
    painter.setFont(bold);
    // The marker takes the colour of the sigma bar on the field's edge; active: a white sigma on it.
    const QColor color = VNStatusPalette::sigmaColor(VNStatusPalette::statusLook(getWidgetStatus()).sigma);
    if (isSigmaActive()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRoundedRect(marker, 2, 2);
        painter.setPen(Qt::white);
    } else {
        painter.setPen(color);
    }
    painter.drawText(marker, Qt::AlignCenter, QString(sigmaSign));
}
