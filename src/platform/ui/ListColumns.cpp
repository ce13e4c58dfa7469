#include "ListColumns.h"

#include "Settings.h"
#include "WindowTools.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QTextDocument>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>

#include <algorithm>
#include <numeric>

namespace {

constexpr int WholeLetters = 24; ///< so many letters are never shortened
constexpr int Thousand = 1000;   ///< widths are saved in thousandths of the list's width
constexpr int SaveDelay = 500;   ///< ms after the last change

const QString ColumnsSection = QStringLiteral("Columns");

int Sum(const QList<int>& numbers) { return std::accumulate(numbers.begin(), numbers.end(), 0); }

/// Widens the columns from `least` towards `most` until the width is used up. Narrow columns reach
/// their end first.
QList<int> Filled(QList<int> least, const QList<int>& most, int width) {
    int spare = width - Sum(least);
    for (bool any = true; any && spare > 0;) {
        any = false;
        const int step = std::max(1, spare / static_cast<int>(least.size()));
        for (qsizetype i = 0; i < least.size() && spare > 0; ++i) {
            const int added = std::min({step, most[i] - least[i], spare});
            if (added <= 0)
                continue;
            least[i] += added;
            spare -= added;
            any = true;
        }
    }
    return least;
}

/// Adds the spare width to the columns that have less than their share of it.
QList<int> Shared(QList<int> needs, const QList<int>& shares, int width) {
    const int spare = width - Sum(needs), total = std::max(1, Sum(shares));
    QList<int> missing;
    for (qsizetype i = 0; i < needs.size(); ++i)
        missing += std::max(0, width * shares[i] / total - needs[i]);
    const int allMissing = Sum(missing);
    int left = spare;
    for (qsizetype i = 0; i < needs.size() && allMissing > 0; ++i) {
        const int added = spare * missing[i] / allMissing;
        needs[i] += added;
        left -= added;
    }
    needs.last() += left;
    return needs;
}

class ListColumns : public QObject {
public:
    static ListColumns& Of(QTreeView& list) {
        auto* columns =
            static_cast<ListColumns*>(list.findChild<QObject*>(Name, Qt::FindDirectChildrenOnly));
        return columns ? *columns : *new ListColumns(list);
    }
    ~ListColumns() override { Save(); }

    void Manage(const QString& name, const QList<int>& shares) {
        Save();
        m_name = name;
        m_shares = shares;
        m_operators.clear();
        JoinModel();
        Restore();
        Apply();
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
            Apply();
        else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
            m_apply.start();
        else if (event->type() == QEvent::ToolTip)
            return ShowWhole(*static_cast<QHelpEvent*>(event));
        return false;
    }

private:
    inline static const QString Name = QStringLiteral("listColumns");

    explicit ListColumns(QTreeView& list) : QObject(&list), m_list(list) {
        setObjectName(Name);
        m_list.header()->setStretchLastSection(false);
        m_list.viewport()->installEventFilter(this);
        m_apply.setSingleShot(true);
        m_save.setSingleShot(true);
        m_save.setInterval(SaveDelay);
        connect(&m_apply, &QTimer::timeout, this, &ListColumns::Apply);
        connect(&m_save, &QTimer::timeout, this, &ListColumns::Save);
        connect(m_list.header(), &QHeaderView::sectionResized, this, &ListColumns::Resized);
        connect(m_list.header(), &QHeaderView::sectionMoved, this, [this] {
            if (!m_applying)
                KeepWidths();
        });
    }

    /// Rows come in many steps; the columns follow once they are all there.
    void JoinModel() {
        QAbstractItemModel* model = m_list.model();
        if (model == m_model)
            return;
        m_model = model;
        const auto later = [this] { m_apply.start(); };
        connect(model, &QAbstractItemModel::modelReset, this, later);
        connect(model, &QAbstractItemModel::rowsInserted, this, later);
        connect(model, &QAbstractItemModel::dataChanged, this, later);
        connect(model, &QAbstractItemModel::headerDataChanged, this, later);
    }

    int Width() const { return m_list.viewport()->width(); }
    int Count() const { return m_list.header()->count(); }

    int Need(int column) const {
        const QAbstractItemView& view = m_list; // the list's own routine is not public
        const int rows = m_list.model()->rowCount() > 0 ? view.sizeHintForColumn(column) : 0;
        return std::max(rows, m_list.header()->sectionSizeHint(column)) + 1;
    }

    /// What the columns take together: all that is seen of the list, unless the shares are more.
    int Space() const {
        const int hundredths = Sum(m_shares);
        return hundredths > 100 ? std::max(Width(), ColumnWidth(m_list.width(), hundredths))
                                : Width();
    }

    QList<int> Fitting() const {
        const int whole = m_list.fontMetrics().averageCharWidth() * WholeLetters;
        QList<int> needs, least;
        for (int column = 0; column < Count(); ++column) {
            needs += Need(column);
            least +=
                std::min(needs.last(), std::max(whole, m_list.header()->sectionSizeHint(column)));
        }
        if (Sum(needs) > Space())
            return Filled(least, needs, Space());
        return Shared(needs, m_shares.size() == needs.size() ? m_shares : needs, Space());
    }

    QList<int> Operators() const {
        QList<int> widths;
        for (const int share : m_operators)
            widths += Width() * share / Thousand;
        return widths;
    }

    void Apply() {
        if (Count() == 0 || m_applying)
            return;
        const QList<int> widths = m_operators.size() == Count() ? Operators() : Fitting();
        m_applying = true;
        for (int column = 0; column < Count(); ++column)
            m_list.setColumnWidth(column, widths[column]);
        m_applying = false;
    }

    /// If the operator makes a column wider, the last column becomes narrower, as long as that
    /// still shows its header.
    void Resized(int column) {
        if (m_applying || !m_list.isVisible())
            return;
        const int last = m_list.header()->logicalIndex(Count() - 1);
        if (column != last) {
            const int others = m_list.header()->length() - m_list.columnWidth(last);
            m_applying = true;
            m_list.setColumnWidth(
                last, std::max(m_list.header()->sectionSizeHint(last), Width() - others));
            m_applying = false;
        }
        KeepWidths();
    }

    void KeepWidths() {
        m_operators.clear();
        for (int column = 0; column < Count(); ++column)
            m_operators += m_list.columnWidth(column) * Thousand / std::max(1, Width());
        m_unsaved.clear();
        for (int place = 0; place < Count(); ++place) {
            const int column = m_list.header()->logicalIndex(place);
            m_unsaved += QStringLiteral("%1:%2").arg(column).arg(m_operators[column]);
        }
        m_save.start();
    }

    void Save() {
        if (!m_unsaved.isEmpty())
            SaveSetting(SettingsApplication, ColumnsSection, m_name, m_unsaved.join(u' '));
        m_unsaved.clear();
    }

    /// What was saved by another edition of the list, or edited by hand, is not used.
    void Restore() {
        const QStringList saved =
            GetSetting(SettingsApplication, ColumnsSection, m_name).split(u' ', Qt::SkipEmptyParts);
        QList<int> order, widths(Count(), 0);
        for (const QString& text : saved) {
            const QStringList parts = text.split(u':');
            const int column = parts.first().toInt(), width = parts.last().toInt();
            if (parts.size() != 2 || column < 0 || column >= Count() || order.contains(column) ||
                width <= 0 || width > 10 * Thousand)
                return;
            order += column;
            widths[column] = width;
        }
        if (order.isEmpty() || order.size() != Count())
            return;
        m_operators = widths;
        m_applying = true;
        for (int place = 0; place < Count(); ++place)
            m_list.header()->moveSection(m_list.header()->visualIndex(order[place]), place);
        m_applying = false;
    }

    bool ShowWhole(const QHelpEvent& event) const {
        const QModelIndex index = m_list.indexAt(event.pos());
        const QAbstractItemView& view = m_list;
        if (!index.isValid() || index.data(Qt::ToolTipRole).isValid() ||
            view.sizeHintForIndex(index).width() <= m_list.columnWidth(index.column()))
            return false;
        QToolTip::showText(event.globalPos(), Qt::convertFromPlainText(index.data().toString()),
                           m_list.viewport(), m_list.visualRect(index));
        return true;
    }

    QTreeView& m_list;
    QAbstractItemModel* m_model = nullptr;
    QString m_name;
    QList<int> m_shares;
    QList<int> m_operators; ///< thousandths, by column; empty until the operator changes something
    QStringList m_unsaved;
    QTimer m_apply;
    QTimer m_save;
    bool m_applying = false;
};

} // namespace

void ManageColumns(QTreeView& list, const QString& name, const QList<int>& shares) {
    ListColumns::Of(list).Manage(name, shares);
}
