#include "frmHelp.h"

#include "HelpBook.h"
#include "WindowPlace.h"
#include "WindowTools.h"
#include "mDeclareGlobals.h"
#include "mSettings.h"
#include "mTranslations.h"
#include "ui_frmHelp.h"

#include <QGuiApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QWindow>

namespace {

constexpr int TopicRole = Qt::UserRole, BlockRole = Qt::UserRole + 1;
constexpr int LeastZoom = -3, MostZoom = 12;
constexpr qsizetype LongestExcerpt = 80;

/// Adds an item under a parent: the list itself, or one of its items.
template <typename Parent>
QTreeWidgetItem* AddItem(Parent* parent, const QString& text, const QString& topic, int block) {
    auto* item = new QTreeWidgetItem(parent, {text});
    item->setToolTip(0, text);
    item->setData(0, TopicRole, topic);
    item->setData(0, BlockRole, block);
    return item;
}

void AddHeadings(QTreeWidgetItem* item, const QString& topic, const QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        if (block.blockFormat().headingLevel() == 2)
            AddItem(item, block.text(), topic, block.blockNumber());
}

/// The part of a text around the first of the words in it.
QString Excerpt(const QString& text, const QStringList& words) {
    qsizetype first = text.size();
    for (const QString& word : words)
        if (const qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0)
            first = qMin(first, at);
    if (first < LongestExcerpt / 2)
        return text.left(LongestExcerpt);
    const qsizetype from = text.lastIndexOf(u' ', first - LongestExcerpt / 4) + 1;
    return QStringLiteral("… ") + text.mid(from, LongestExcerpt);
}

} // namespace

frmHelp::frmHelp(const QString& path)
    : QDialog(nullptr, Qt::Window), m_ui(std::make_unique<Ui::frmHelp>()) {
    m_ui->setupUi(this);
    setWindowIcon(ProgramIcon(QStringLiteral("wardlock")));
    m_ui->splitter->setStretchFactor(1, 1);
    m_ui->splitter->setSizes({240, 560});
    RememberPlace(*this);
    ConnectTools();
    Load(path);
    Zoom(SavedNumber(SettingsSection::Settings, QStringLiteral("HelpZoom"), 0));
}

frmHelp::~frmHelp() = default;

void frmHelp::ConnectTools() {
    const auto tool = [this](QAction* action, const char* icon, const QList<QKeySequence>& keys,
                             const std::function<void()>& act) {
        action->setIcon(ProgramIcon(QString::fromLatin1(icon)));
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, this, act);
        m_ui->tbrHelp->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    };
    HelpBrowser* text = m_ui->txtHelp;
    tool(m_ui->actBack, "preview-previous", {QKeySequence::Back}, [text] { text->backward(); });
    tool(m_ui->actForward, "preview-next", {QKeySequence::Forward}, [text] { text->forward(); });
    tool(m_ui->actHome, "home", {QKeySequence(Qt::ALT | Qt::Key_Home)},
         [this] { ShowTopic(HelpBook::Contents); });
    tool(m_ui->actPrint, "preview-print", {QKeySequence::Print}, [this] { Print(); });
    tool(m_ui->actZoomOut, "preview-zoom-out", {QKeySequence::ZoomOut}, [this] { Zoom(-1); });
    tool(m_ui->actZoomIn, "preview-zoom-in",
         {QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)}, [this] { Zoom(1); });
    connect(text, &QTextBrowser::backwardAvailable, m_ui->actBack, &QAction::setEnabled);
    connect(text, &QTextBrowser::forwardAvailable, m_ui->actForward, &QAction::setEnabled);
    connect(text, &QTextBrowser::sourceChanged, this, &frmHelp::ShowState);
    m_ui->actBack->setEnabled(false);
    m_ui->actForward->setEnabled(false);

    connect(m_ui->txtSearch, &QLineEdit::textChanged, this, &frmHelp::FillList);
    connect(m_ui->txtSearch, &QLineEdit::returnPressed, this, [this] {
        m_ui->lstContents->setFocus();
        if (QTreeWidgetItem* first = m_ui->lstContents->topLevelItem(0))
            m_ui->lstContents->setCurrentItem(first->childCount() > 0 ? first->child(0) : first);
    });
    connect(m_ui->lstContents, &QTreeWidget::currentItemChanged, this, &frmHelp::ShowItem);
    connect(m_ui->lstContents, &QTreeWidget::itemClicked, this, &frmHelp::ShowItem);
    auto* find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, m_ui->txtSearch, [this] {
        m_ui->txtSearch->setFocus();
        m_ui->txtSearch->selectAll();
    });
    addAction(find);
}

void frmHelp::Load(const QString& path) {
    auto book = std::make_unique<HelpBook>(path);
    const QString topic = m_book ? m_ui->txtHelp->Topic() : QString();
    TranslateWindow(*this, Translated);
    for (QAction* action : m_ui->tbrHelp->actions())
        if (!action->isSeparator())
            action->setToolTip(action->text() + QStringLiteral(" (") +
                               action->shortcut().toString(QKeySequence::NativeText) + u')');
    m_ui->txtHelp->SetBook(*book);
    m_book = std::move(book);
    FillList();
    if (topic.isEmpty())
        return;
    m_ui->txtHelp->clearHistory();
    m_ui->txtHelp->reload();
}

void frmHelp::ShowTopic(const QString& topic) {
    m_ui->txtSearch->clear();
    m_ui->txtHelp->ShowTopic(m_book->Topics().contains(topic) ? topic : HelpBook::Contents);
    m_ui->txtHelp->setFocus();
}

QStringList frmHelp::Words() const {
    return m_ui->txtSearch->text().split(u' ', Qt::SkipEmptyParts);
}

/// The contents; while something is searched, what was found.
void frmHelp::FillList() {
    QTreeWidget& list = *m_ui->lstContents;
    const QSignalBlocker blocker(list);
    list.clear();
    const QStringList words = Words();
    m_ui->txtHelp->Mark(words);
    if (words.isEmpty()) {
        for (const QString& topic : m_book->Topics())
            AddHeadings(AddItem(&list, m_book->Title(topic), topic, -1), topic,
                        m_book->Document(topic));
        ShowState();
        return;
    }
    QTreeWidgetItem* topic = nullptr;
    for (const HelpHit& hit : m_book->Search(words)) {
        if (!topic || topic->data(0, TopicRole) != hit.topic)
            topic = AddItem(&list, m_book->Title(hit.topic), hit.topic, -1);
        AddItem(topic, Excerpt(hit.excerpt, words), hit.topic, hit.block);
    }
    if (!topic)
        AddItem(&list, Translate("Nothing was found."), {}, -1)->setFlags(Qt::NoItemFlags);
    list.expandAll();
}

void frmHelp::ShowItem(const QTreeWidgetItem* item) {
    if (!item || item->data(0, TopicRole).toString().isEmpty())
        return;
    m_ui->txtHelp->ShowTopic(item->data(0, TopicRole).toString(), item->data(0, BlockRole).toInt());
}

/// Selects the shown topic in the contents.
void frmHelp::ShowState() {
    if (!m_book || !Words().isEmpty())
        return;
    const QString topic = m_ui->txtHelp->Topic();
    QTreeWidget& list = *m_ui->lstContents;
    if (list.currentItem() && list.currentItem()->data(0, TopicRole) == topic)
        return;
    const QSignalBlocker blocker(list);
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        if (QTreeWidgetItem* item = list.topLevelItem(i); item->data(0, TopicRole) == topic) {
            list.setCurrentItem(item);
            list.scrollToItem(item);
        }
}

void frmHelp::Zoom(int steps) {
    const int zoom = qBound(LeastZoom, m_zoom + steps, MostZoom);
    m_ui->txtHelp->zoomIn(zoom - m_zoom);
    if (std::exchange(m_zoom, zoom) != zoom)
        SaveSetting(SettingsApplication, SettingsSection::Settings, QStringLiteral("HelpZoom"),
                    QString::number(zoom));
}

void frmHelp::Print() {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        m_ui->txtHelp->Print(printer);
}

bool frmHelp::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked)
        FollowModalWindow();
    return QDialog::event(event);
}

void frmHelp::FollowModalWindow() {
    QWindow* modal = QGuiApplication::modalWindow();
    if (!modal || windowHandle()->isAncestorOf(modal))
        return; // a window of its own: the print dialog
    windowHandle()->setTransientParent(modal);
    // The window below it, if there is one, is next.
    connect(modal, &QObject::destroyed, this, &frmHelp::FollowModalWindow, Qt::QueuedConnection);
}
