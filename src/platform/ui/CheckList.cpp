#include "CheckList.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTextDocument>
#include <QTreeWidget>
#include <QVBoxLayout>

CheckList::CheckList(QWidget* parent)
    : QWidget(parent), m_list(new QTreeWidget(this)),
      m_all(new QPushButton(QStringLiteral(QT_TR_NOOP("All")), this)),
      m_none(new QPushButton(QStringLiteral(QT_TR_NOOP("None")), this)) {
    m_list->setHeaderHidden(true);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    setFocusProxy(m_list);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_all);
    buttons->addWidget(m_none);
    buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
    for (QPushButton* button : {m_all, m_none})
        button->setAutoDefault(false); // Enter is for the preview
    connect(m_all, &QPushButton::clicked, this, [this] { CheckAll(Qt::Checked); });
    connect(m_none, &QPushButton::clicked, this, [this] { CheckAll(Qt::Unchecked); });
    connect(this, &QObject::objectNameChanged, this, &CheckList::NameParts);
}

void CheckList::NameParts(const QString& name) {
    m_list->setObjectName(QStringLiteral("lvw") + name);
    m_all->setObjectName(QStringLiteral("cmd%1_0").arg(name));
    m_none->setObjectName(QStringLiteral("cmd%1_1").arg(name));
}

void CheckList::SetHeader(const QString& text) {
    m_list->setHeaderLabel(text);
    m_list->setAccessibleName(text);
    m_list->setHeaderHidden(false);
}

void CheckList::Clear() { m_list->clear(); }

void CheckList::Add(const QString& text, const QVariant& tag, const QString& toolTip) {
    auto* row = new QTreeWidgetItem({text});
    row->setData(0, Qt::UserRole, tag);
    row->setToolTip(0, Qt::mightBeRichText(toolTip)
                           ? Qt::convertFromPlainText(toolTip, Qt::WhiteSpaceNormal)
                           : toolTip);
    row->setCheckState(0, Qt::Checked);
    m_list->addTopLevelItem(row);
}

int CheckList::Count() const { return m_list->topLevelItemCount(); }

QVariantList CheckList::CheckedTags() const {
    QVariantList tags;
    for (int row = 0; row < Count(); ++row)
        if (m_list->topLevelItem(row)->checkState(0) == Qt::Checked)
            tags += m_list->topLevelItem(row)->data(0, Qt::UserRole);
    return tags;
}

void CheckList::CheckAll(Qt::CheckState state) {
    for (int row = 0; row < Count(); ++row)
        m_list->topLevelItem(row)->setCheckState(0, state);
}
