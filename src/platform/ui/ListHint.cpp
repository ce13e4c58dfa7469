#include "ListHint.h"

#include <QEvent>
#include <QLabel>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int LeastLines = 7, LeastLetters = 40;

class ListHint : public QLabel {
public:
    explicit ListHint(QTreeView& list) : QLabel(list.viewport()), m_list(list) {
        setObjectName(QStringLiteral("listHint"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        setAlignment(Qt::AlignCenter);
        setMargin(4);
        // The header and a few lines always fit.
        list.setMinimumWidth(
            std::max(list.minimumWidth(), LeastLetters * fontMetrics().averageCharWidth()));
        list.setMinimumHeight(
            std::max(list.minimumHeight(), LeastLines * fontMetrics().lineSpacing()));
        list.viewport()->installEventFilter(this);
        const auto follow = [this] { Follow(); };
        const QAbstractItemModel* model = list.model();
        connect(model, &QAbstractItemModel::modelReset, this, follow);
        connect(model, &QAbstractItemModel::rowsInserted, this, follow);
        connect(model, &QAbstractItemModel::rowsRemoved, this, follow);
    }
    void Show(const QString& text) {
        setText(text);
        Follow();
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Resize)
            setGeometry(m_list.viewport()->rect());
        return false;
    }

private:
    void Follow() {
        bool empty = !text().isEmpty();
        for (int row = 0; empty && row < m_list.model()->rowCount(); ++row)
            empty = m_list.isRowHidden(row, {});
        setGeometry(m_list.viewport()->rect());
        setVisible(empty);
        m_list.setAccessibleDescription(empty ? text() : QString());
    }

    QTreeView& m_list;
};

} // namespace

void ShowWhenEmpty(QTreeView& list, const QString& text) {
    auto* hint =
        static_cast<ListHint*>(list.viewport()->findChild<QLabel*>(QStringLiteral("listHint")));
    if (!hint)
        hint = new ListHint(list);
    hint->Show(text);
}
