#include "frmListEdit.h"

#include "ListColumns.h"
#include "ListHint.h"
#include "NameField.h"
#include "WindowTools.h"
#include "frmAddButton.h"
#include "frmEditButton.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmListEdit.h"

#include <QKeyEvent>

namespace {

enum Column { CodeColumn, NameColumn, DescColumn };

struct TypeWords {
    const char* icon;
    const char* label;
    const char* dialogTitle;
};

const TypeWords& WordsOf(GroupType type) {
    static const TypeWords user{"user", QT_TR_NOOP("User Group"), QT_TR_NOOP("Add New User")};
    static const TypeWords site{"location", QT_TR_NOOP("Site"), QT_TR_NOOP("Add New Location")};
    static const TypeWords eventBook{"event", QT_TR_NOOP("Event Book"),
                                     QT_TR_NOOP("Add New Event")};
    return type == SiteGroup ? site : type == EventBookGroup ? eventBook : user;
}

} // namespace

frmListEdit::frmListEdit(DockingLink& link, QWidget* parent)
    : EditorDialog(parent), m_ui(std::make_unique<Ui::frmListEdit>()), m_link(link) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    m_buttons.SetColumns({Translate("Button ID"), Translate("Name"), Translate("Description")});
    JoinList(*m_ui->lvwItems, m_buttons);
    ManageColumns(*m_ui->lvwItems, QStringLiteral("frmListEdit"), {20, 40, 40});
    m_ui->lvwItems->sortByColumn(NameColumn, Qt::AscendingOrder);
    SelectAllOnFocus(*m_ui->txtName);
    // A new button can only be read from a reader in the station.
    m_ui->cmdSetup_1->setEnabled(gDockingDetected);
    connect(m_ui->cmdSetup_0, &QPushButton::clicked, this, &frmListEdit::EditButtonItem);
    connect(m_ui->cmdSetup_1, &QPushButton::clicked, this, &frmListEdit::AddButtonItem);
    connect(m_ui->cmdSetup_2, &QPushButton::clicked, this, &frmListEdit::DeleteButtonItem);
    connect(m_ui->lvwItems, &QTreeView::doubleClicked, this, &frmListEdit::EditButtonItem);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmListEdit::cmdOK_Click);
}

frmListEdit::~frmListEdit() = default;

QStringList frmListEdit::Entered() const { return {m_ui->txtName->text(), m_ui->txtDesc->text()}; }

int frmListEdit::exec() {
    m_receivedName = ListName;
    Update();
    SelectPlace(*m_ui->lvwItems, 0);
    if (AddMode)
        m_ui->txtName->setFocus();
    else
        m_ui->lvwItems->setFocus();
    return EditorDialog::exec();
}

void frmListEdit::Update() {
    const TypeWords& words = WordsOf(ItemType);
    m_ui->txtName->setText(ListName);
    m_ui->txtDesc->setText(ListDesc);
    const int place = SelectedPlace(*m_ui->lvwItems);
    QList<ListRow> rows;
    for (const Button& button : ButtonsOf(ID))
        rows += ListRow{{button.code, button.name, button.description}, button.id};
    m_buttons.SetIcon(ProgramIcon(QString::fromLatin1(words.icon)));
    m_buttons.SetRows(std::move(rows));
    SelectPlace(*m_ui->lvwItems, std::max(place, 0));
    ShowIcon(*m_ui->imgIcon, QString::fromLatin1(words.icon));
    setWindowTitle(Translate("Edit") + u' ' + Translate(words.label));
    ShowWhenEmpty(*m_ui->lvwItems,
                  gDockingDetected
                      ? Translate("No buttons yet. Press Add, then touch the reader in the docking "
                                  "station with a button.")
                      : Translate("No buttons yet. A new button is read at the docking station, "
                                  "which is not connected."));
    const bool any = m_buttons.rowCount() > 0;
    m_ui->cmdSetup_0->setEnabled(any);
    m_ui->cmdSetup_2->setEnabled(any);
}

/// Keeps what was typed so far when the buttons change.
void frmListEdit::KeepTyped() {
    ListName = m_ui->txtName->text();
    ListDesc = m_ui->txtDesc->text();
}

void frmListEdit::EditButtonItem() {
    Guarded("EditButtonItem of Form frmListEdit", [this] {
        const int place = SelectedPlace(*m_ui->lvwItems);
        if (place < 0) {
            IvMessageBox(Translate("No Item is selected"));
            return;
        }
        const ListRow row = m_buttons.Row(place);
        frmEditButton dialog(this);
        dialog.SetCaption(Translate(WordsOf(ItemType).dialogTitle));
        dialog.SetIcon(QString::fromLatin1(WordsOf(ItemType).icon));
        dialog.ExistingNames = m_buttons.TextsOf(NameColumn);
        dialog.EditName = row.texts[NameColumn];
        dialog.Desc = row.texts[DescColumn];
        dialog.exec();
        if (!dialog.OK())
            return;
        UpdateButton({row.tag.toInt(), {}, dialog.EditName, dialog.Desc});
        KeepTyped();
        Update();
        SelectPlace(*m_ui->lvwItems, m_buttons.PlaceOf(row.tag));
    });
}

void frmListEdit::AddButtonItem() {
    Guarded("AddButtonItem of Form frmListEdit", [this] {
        frmAddButton dialog(m_link, this);
        dialog.setWindowTitle(Translate(WordsOf(ItemType).dialogTitle));
        dialog.SetIcon(QString::fromLatin1(WordsOf(ItemType).icon));
        dialog.ButtonType = static_cast<std::uint8_t>(ItemType);
        dialog.ExistingNames = m_buttons.TextsOf(NameColumn);
        dialog.exec();
        if (!dialog.OK())
            return;
        AddButton(ID, {0, dialog.DallasID(), dialog.ButtonName, dialog.Desc});
        KeepTyped();
        Update();
        const QStringList codes = m_buttons.TextsOf(CodeColumn);
        SelectPlace(*m_ui->lvwItems, static_cast<int>(codes.indexOf(dialog.DallasID())));
    });
}

void frmListEdit::DeleteButtonItem() {
    Guarded("DeleteButtonItem of Form frmListEdit", [this] {
        const int place = SelectedPlace(*m_ui->lvwItems);
        if (place < 0 ||
            IvMessageBox(Translate("Are you sure you want to delete this item?") +
                             QStringLiteral("\n\n") +
                             FormatStr(Translate("\"%0:s\" will be lost. Touches that are "
                                                 "already downloaded are kept."),
                                       {m_buttons.Row(place).texts[NameColumn]}),
                         MessageKind::Question, MessageButtons::YesNo) != MessageAnswer::Yes)
            return;
        DeleteButton(m_buttons.Row(place).tag.toInt());
        KeepTyped();
        Update();
        SelectPlace(*m_ui->lvwItems, std::max(place - 1, 0));
        m_ui->lvwItems->setFocus(); // the Delete button had it, and may be disabled now
    });
}

bool frmListEdit::EditedNameOK() const {
    return NameFault(Named::Group, m_ui->txtName->text().trimmed(), ExistingNames, m_receivedName)
        .isEmpty();
}

void frmListEdit::cmdOK_Click() {
    if (!AcceptName(Named::Group, *m_ui->txtName, ExistingNames, m_receivedName) ||
        !AcceptDescription(*m_ui->txtDesc))
        return;
    ListName = m_ui->txtName->text().trimmed();
    ListDesc = m_ui->txtDesc->text();
    accept();
}

void frmListEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete && m_ui->lvwItems->hasFocus())
        DeleteButtonItem();
    else
        QDialog::keyPressEvent(event);
}
