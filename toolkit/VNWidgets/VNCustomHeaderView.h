#pragma once

#include "vnwidgets_export.h"

#include <QHash>
#include <QHeaderView>
#include <QList>
#include <QSet>
#include <QSize>

#include <memory>

class QTextDocument;

// A header view in the toolkit's look that reads the toolkit's header roles (VNItemDataRoles):
// - StatusRole: a colour band along the section's inner edge in the status colour;
// - RichTextRole: the title is rendered as rich text (subscripts, bold, ...);
// - ReadOnlyRole: a fixed section, never drawn selected, title in the muted colour;
// - Qt::TextAlignmentRole, Qt::DecorationRole, Qt::ToolTipRole as in QHeaderView.
// On top it offers selectable sections (drawn in the selection colour when selected), a check box
// in one section (driven by the owning tree, see VNDragTreeWidget::useCheckStateHeader), tool-tip
// buttons ("?") inside sections, and the compare-differs look of the whole header.
class VNWIDGETS_EXPORT VNCustomHeaderView : public QHeaderView
{
    Q_OBJECT

public:
    // sectionPadding: extra width and height added to every section's size hint, beyond the
    // room the title, the band and any buttons need. (0, 0) keeps the natural size.
    VNCustomHeaderView(Qt::Orientation orientation, QSize sectionPadding, QWidget* parent = nullptr);

    QSize sectionPadding() const { return m_sectionPadding; }

    void setSelectable(bool selectable, int section);
    bool isSelectable(int section) const;
    // Marks these sections as selected; sections that are not selectable are left out.
    void setSelectedIndexes(const QList<int>& sections);
    QList<int> selectedSections() const;
    bool isSectionSelected(int section) const;

    // A "?" button at the right of the section; hovering or clicking it shows the text.
    void setToolTipButtonText(int section, const QString& text);
    QString toolTipButtonText(int section) const;
    QRect toolTipButtonRect(int section) const;

    // A check box in the section; clicking it emits checkBoxClicked with the state it asks for.
    void setCheckBoxSection(int section, Qt::Alignment alignment);
    int checkBoxSection() const { return m_checkBoxSection; }
    void setCheckBoxState(Qt::CheckState state);
    Qt::CheckState checkBoxState() const { return m_checkBoxState; }
    QRect checkBoxRect() const;

    // The whole header framed in the compare-differs colour.
    void setCompareDifferent(bool different);
    bool isCompareDifferent() const { return m_compareDifferent; }

signals:
    void checkBoxClicked(Qt::CheckState requested);
    void toolTipButtonClicked(int section);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    QSize sectionSizeFromContents(int logicalIndex) const override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    QRect sectionRect(int logicalIndex) const;
    QRect checkBoxRectIn(const QRect& sectionRect) const;
    QRect toolTipButtonRectIn(const QRect& sectionRect) const;
    void paintTitle(QPainter* painter, const QRect& rect, int logicalIndex, bool muted) const;
    void paintStatusBand(QPainter* painter, const QRect& rect, int status) const;
    // Laid-out rich titles by their text: laying out HTML on every paint is too slow for big tables.
    QTextDocument* richTextDocument(const QString& html) const;

    QSize m_sectionPadding;
    QSet<int> m_selectable;
    QList<int> m_selected;
    QHash<int, QString> m_toolTipButtons;
    int m_checkBoxSection = -1;
    Qt::Alignment m_checkBoxAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    Qt::CheckState m_checkBoxState = Qt::Unchecked;
    bool m_compareDifferent = false;
    int m_pressedCheckBoxSection = -1;
    mutable QHash<QString, std::shared_ptr<QTextDocument>> m_richTextCache;
};
