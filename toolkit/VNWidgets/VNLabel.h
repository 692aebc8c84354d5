#pragma once

#include "vnwidgets_export.h"

#include <QColor>
#include <QIcon>
#include <QLabel>

class VNFormatter;

// A label in the toolkit's look. It can be a section header, show a value with its unit inside a
// text pattern ("_UNIT_" stands for the value), or show an icon at a chosen size.
//
// A unit value is formatted by the label's VNFormatter: the value is given in its unit and shown
// in the formatter's display unit with its decimals. Without a pattern, the label's own text
// serves as pattern when it holds "_UNIT_", else the value and unit are shown alone.
//
// A label whose buddy is a value field (VNDoubleSpinBox or VNValueEdit) works as a virtual slider
// for it: dragging sideways over the label steps the buddy's value, one step per few pixels.
class VNWIDGETS_EXPORT VNLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(bool isHeader READ isHeader WRITE setIsHeader NOTIFY isHeaderChanged)
    Q_PROPERTY(QString unitText READ unitText WRITE setUnitText)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize)
    // The rule under a header; the style sheet sets it ("qproperty-ruleColor"), none by default.
    Q_PROPERTY(QColor ruleColor READ ruleColor WRITE setRuleColor)

public:
    explicit VNLabel(QWidget* parent = nullptr);
    explicit VNLabel(const QString& text, QWidget* parent = nullptr);

    bool isHeader() const { return m_isHeader; }
    void setIsHeader(bool header);

    QColor ruleColor() const { return m_ruleColor; }
    void setRuleColor(const QColor& color);

    QString unitText() const { return m_unitText; }
    void setUnitText(const QString& pattern);
    void setUnitValue(double value, const QString& unit = QString());
    void clearUnitValue();
    bool hasUnitValue() const { return m_hasUnitValue; }
    double unitValue() const { return m_unitValue; }
    QString unit() const { return m_unit; }
    // Created on first use, so that plain labels carry no formatter.
    VNFormatter* formatter();

    QIcon icon() const { return m_icon; }
    void setIcon(const QIcon& icon);
    QSize iconSize() const { return m_iconSize; }
    void setIconSize(const QSize& size);

    static const QString unitPlaceholder;

signals:
    void isHeaderChanged(bool header);

protected:
    void paintEvent(QPaintEvent* event) override;
    // Enter through event(): the type of enterEvent()'s argument differs between Qt 5 and Qt 6.
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool hasSlidableBuddy() const;
    void stepBuddy(int steps);
    void finishBuddyEdit();

    void showUnitText();
    void showIcon();

    bool m_isHeader = false;
    QColor m_ruleColor;
    QString m_unitText;
    bool m_hasUnitValue = false;
    double m_unitValue = 0.0;
    QString m_unit;
    VNFormatter* m_formatter = nullptr;
    QIcon m_icon;
    QSize m_iconSize = QSize(16, 16);
    bool m_sliding = false;
    int m_slideStartX = 0;
    int m_slidSteps = 0;
};
