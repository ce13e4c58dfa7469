// The setup page and its editors, driven by their controls' names.

#include "Controls.h"
#include "DockingLink.h"
#include "ListColumns.h"
#include "ScriptedBoxes.h"
#include "Settings.h"
#include "TestHome.h"
#include "TestTable.h"
#include "WindowPlace.h"
#include "frmAddButton.h"
#include "frmEditButton.h"
#include "frmEditTime.h"
#include "frmEditTour.h"
#include "frmListEdit.h"
#include "frmMDISetup.h"
#include "frmManualID.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QFrame>
#include <QHeaderView>
#include <QHelpEvent>
#include <QListView>
#include <QScreen>
#include <QSignalSpy>
#include <QTabBar>
#include <QTimeEdit>
#include <QToolTip>
#include <QTreeWidget>

namespace {

enum Tab { Sites, EventBooks, TourTab, ReaderTab };

QPoint CentreOf(const QTreeView& list, int row) {
    return list.visualRect(list.model()->index(row, 0)).center();
}

/// Drags a row, by real mouse events, to a place in the viewport of a list. `during` runs before
/// the button is released.
void Drag(QTreeView& from, int row, QTreeView& to, const QPoint& target,
          const std::function<void()>& during = {}) {
    QWidget* source = from.viewport();
    const QPoint start = CentreOf(from, row);
    const QPoint end = source->mapFromGlobal(to.viewport()->mapToGlobal(target));
    QTest::mousePress(source, Qt::LeftButton, {}, start);
    for (int step = 1; step <= 4; ++step) {
        const QPoint place = start + (end - start) * step / 4;
        QMouseEvent move(QEvent::MouseMove, place, source->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(source, &move);
    }
    if (during)
        during();
    QTest::mouseRelease(source, Qt::LeftButton, {}, end);
}

} // namespace

class SetupWindowsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> m_home;
    ScriptedBoxes m_boxes;
    DockingLink m_link;

    /// The page on a tab.
    std::unique_ptr<frmMDISetup> Page(Tab tab) {
        auto page = std::make_unique<frmMDISetup>(m_link, nullptr);
        page->resize(800, 500);
        page->show();
        new QAbstractItemModelTester(Control<QTreeView>(*page, "lvwProgram")->model(),
                                     QAbstractItemModelTester::FailureReportingMode::QtTest,
                                     page.get());
        page->Start();
        page->setFocus();
        Control<QTabBar>(*page, "tabSetup")->setCurrentIndex(tab);
        return page;
    }

    /// The tour editor on the night tour of the demonstration site.
    std::unique_ptr<frmEditTour> Editor() {
        auto editor = std::make_unique<frmEditTour>(nullptr);
        editor->GroupID = 2;
        editor->ListName = QStringLiteral("Night round");
        editor->Tolerance = 5;
        editor->StartTime = DateTime::FromTime(23, 15);
        editor->ExistingNames = {"Day round", "Night round"};
        editor->Populate();
        editor->show();
        return editor;
    }

private slots:
    void init() {
        m_home = std::make_unique<TestHome>(TestHome::DemoSite);
        gDockingDetected = true;
        m_boxes.TakeTexts();
        m_boxes.Answers.clear();
    }
    void cleanup() {
        m_home.reset();
        gDockingDetected = false;
    }

    void TabsAndLists() {
        auto page = std::make_unique<frmMDISetup>(m_link, nullptr);
        QString title;
        connect(page.get(), &frmMDISetup::TitleChanged, [&](const QString& text) { title = text; });
        page->show();
        page->Start();
        QCOMPARE(title, "Setup: Sites");
        auto* list = Control<QTreeView>(*page, "lvwProgram");
        auto* copy = Control<QPushButton>(*page, "cmdTourCopy");
        QCOMPARE(RowsIn(*list), (QStringList{"Harbour Warehouse|Pier 4, north side",
                                             "Office Tower|Kestrel Street 12"}));
        QVERIFY(copy->isHidden() && page->EditedNameOK("Kestrel Street 12"));
        auto* tabs = Control<QTabBar>(*page, "tabSetup");
        tabs->setCurrentIndex(TourTab);
        QCOMPARE(title, "Setup: Tours");
        QVERIFY(copy->isVisible());
        QCOMPARE(RowsIn(*list),
                 (QStringList{"Day round|14:00|Office Tower, once a day",
                              "Night round|23:15|Harbour Warehouse, over midnight"}));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(50, 200)); // below the rows
        QCOMPARE(SelectedPlace(*list), 0);
        // A click on a header sorts, a second click reverses, another column begins ascending.
        const auto clickHeader = [&](int column) {
            QHeaderView* header = list->header();
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              QPoint(header->sectionPosition(column) + 20, 8));
            return RowsIn(*list).first().section(u'|', 0, 0);
        };
        QCOMPARE(clickHeader(0), "Night round");
        QCOMPARE(list->currentIndex().data(), "Day round"); // still the same one
        QCOMPARE(clickHeader(0), "Day round");
        QCOMPARE(clickHeader(2), "Night round");
        gDockingDetected = false;
        tabs->setCurrentIndex(ReaderTab);
        QVERIFY(!Control<QPushButton>(*page, "cmdSetup_1")->isEnabled());
        QVERIFY(Control<QPushButton>(*page, "cmdSetup_0")->isEnabled() && copy->isHidden());
    }

    void AddingAndDeleting() {
        const auto page = Page(EventBooks);
        auto* list = Control<QTreeView>(*page, "lvwProgram");
        auto* add = Control<QPushButton>(*page, "cmdSetup_1");
        const auto current = [&] { return list->currentIndex().data().toString(); };
        add->click();
        add->click();
        QCOMPARE(current(), "Event Book 002");
        SelectPlace(*list, 0);
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(RowsIn(*list).size(), 3); // the answer was No
        QCOMPARE(m_boxes.TakeTexts(),
                 {"Are you sure you want to delete it?\n\n\"Event Book 001\" will be lost."});
        m_boxes.Answers = {MessageAnswer::Yes};
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(RowsIn(*list),
                 (QStringList{"Event Book 002|", "Incidents|Carried by every guard"}));
        QCOMPARE(current(), "Event Book 002"); // the row at the old place
        add->click();
        QCOMPARE(current(), "Event Book 001"); // the number is free again
        m_boxes.TakeTexts();
        SelectPlace(*list, 2);
        m_boxes.Answers = {MessageAnswer::Yes, MessageAnswer::Yes, MessageAnswer::Yes};
        for (int i = 0; i < 3; ++i)
            Press(*page, "cmdSetup_2");
        QCOMPARE(m_boxes.TakeTexts().first(),
                 "The selected group contains sub-items\nAre you sure you want to delete "
                 "it?\n\n\"Incidents\" and its buttons will be lost.");
        QVERIFY(RowsIn(*list).isEmpty());
        QVERIFY(!Control<QPushButton>(*page, "cmdSetup_0")->isEnabled() &&
                !Control<QPushButton>(*page, "cmdSetup_2")->isEnabled());
        QTest::keyClick(page.get(), Qt::Key_Delete); // nothing is left to delete
        QCOMPARE(m_boxes.TakeTexts(), QStringList());
        QCOMPARE(RowsOf("SELECT * FROM tblButtons WHERE tButtonCode LIKE '7E%'"), QStringList());
    }

    void Readers() {
        gConn->Execute("INSERT INTO tblReaders VALUES ('0A0B0C0D', 'Reader 1')");
        const auto page = Page(ReaderTab);
        auto* list = Control<QTreeView>(*page, "lvwProgram");
        QCOMPARE(RowsIn(*list), (QStringList{"0A0B0C0D|Reader 1", "4B5831A7|Night reader"}));
        // A name in use and an empty one are refused, and the editor stays open.
        Script edit;
        const QString editor = QStringLiteral("frmEditReader");
        for (const char* name : {"Night reader", "  ", " Day reader "}) {
            Type(edit, editor, "txtDesc", name);
            edit.Click(editor, "cmdOK");
            edit.Then([] { return true; }); // the click comes first
        }
        edit.Start();
        QTest::keyClick(list, Qt::Key_Return);
        QVERIFY(edit.Finish());
        QCOMPARE(RowsIn(*list).first(), "0A0B0C0D|Day reader");
        QCOMPARE(m_boxes.TakeTexts().size(), 2);
        m_boxes.Answers = {MessageAnswer::Yes};
        Press(*page, "cmdSetup_2");
        QCOMPARE(m_boxes.TakeTexts(),
                 {"Are you sure you want to delete this reader? 0A0B0C0D\n\n\"Day reader\" will be "
                  "lost. Touches that are already downloaded are kept."});
        QCOMPARE(RowsIn(*list).size(), 1);
    }

    // Buttons are written at once. A name that was typed meanwhile stays in its field.
    void GroupEditor() {
        const auto page = Page(Sites);
        auto* list = Control<QTreeView>(*page, "lvwProgram");
        const QString editor = QStringLiteral("frmListEdit");
        const auto field = [&](const char* name) {
            return Script::Find<QLineEdit>(editor, QString::fromLatin1(name));
        };
        const auto items = [&] { return RowsIn(*Script::Find<QTreeView>(editor, "lvwItems")); };
        Script script;
        Type(script, editor, "txtName", "Office Tower");
        script.Click(editor, "cmdOK");
        QString focused;
        script.Then([&] {
            if (m_boxes.Messages.isEmpty())
                return false;
            focused = field("txtName")->selectedText();
            return true;
        });
        Type(script, editor, "txtName", "Quay");
        script.Click(editor, "cmdSetup_0");
        Type(script, "frmEditButton", "txtName", "Aft bollard");
        script.Click("frmEditButton", "cmdOK");
        QStringList edited;
        script.Then([&] {
            if (!items().first().contains(u"Aft"))
                return false;
            edited = items() + QStringList{field("txtName")->text()};
            m_boxes.Answers = {MessageAnswer::Yes};
            return true;
        });
        script.Click(editor, "cmdSetup_2");
        script.Then([&] { return items().size() == 3; });
        script.Click(editor, "cmdOK");
        script.Start();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, CentreOf(*list, 0));
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, CentreOf(*list, 0));
        QVERIFY(script.Finish());
        QCOMPARE(focused, "Office Tower");
        QCOMPARE(edited, (QStringList{"1A41D0|Aft bollard|Compressor room door",
                                      "1A40C7|Loading bay 2|Beside the roller door",
                                      "1A40C2|Main gate|Left post, knee height",
                                      "1A422B|Quay stairs|Top step rail", "Quay"}));
        QCOMPARE(m_boxes.TakeTexts(),
                 (QStringList{"That name is already used.  Please enter another name.",
                              "Are you sure you want to delete this item?\n\n\"Aft bollard\" will "
                              "be lost. Touches that are already downloaded are kept."}));
        QCOMPARE(RowsIn(*list).last(), "Quay|Pier 4, north side");
    }

    void TourPage() {
        const auto page = Page(TourTab);
        auto* list = Control<QTreeView>(*page, "lvwProgram");
        Press(*page, "cmdSetup_1");
        QCOMPARE(RowsIn(*list).last(), "Tour 001|00:00| ");
        // A tour without points cannot be copied; one with points can, under a fresh name.
        for (const int tour : {2, 1}) {
            Script script;
            script.With<QComboBox>("frmCopyTour", "cboTours",
                                   [=](QComboBox& tours) { tours.setCurrentIndex(tour); });
            script.Click("frmCopyTour", "cmdOK");
            script.Start();
            Press(*page, "cmdTourCopy");
            QVERIFY(script.Finish());
        }
        QCOMPARE(m_boxes.TakeTexts(), {"Cannot find any Tour Points to copy"});
        QCOMPARE(list->currentIndex().data(), "Tour 002");
        QCOMPARE(
            RowsOf("SELECT tButtonCode FROM tblTourPoints WHERE lParentID = 4 ORDER BY lIndex"),
            (QStringList{"1A40C2", "1A40C7", "1A41D0", "1A422B", "1A40C2"}));
        QCOMPARE(RowsOf("SELECT tDesc, iTolerance, dtStartTime FROM tblTours WHERE ID = 4"),
                 QStringList(" |5|0"));
        Press(*page, "cmdSetup_2");
        QCOMPARE(m_boxes.TakeTexts(),
                 {"The selected Tour contains data.\nAre you sure you want to "
                  "delete this tour?\n\n\"Tour 002\" and its points will be lost."});
        gConn->Execute("DELETE * FROM tblButtons");
        Press(*page, "cmdSetup_0");
        QCOMPARE(m_boxes.TakeTexts(),
                 {"You must add at least one location before you can define a tour"});
    }

    void TourEditorMoves() {
        const auto editor = Editor();
        auto* locations = Control<QTreeView>(*editor, "lvwLocations");
        auto* selected = Control<QTreeView>(*editor, "lvwSelected");
        const auto tour = [&] {
            QStringList points;
            for (const QString& row : RowsIn(*selected))
                points += row.section(u'|', 0, 0) + row.section(u'|', 2, 2).left(2);
            return points.join(u' ');
        };
        const auto move = [&](int button) {
            Press(*editor, qPrintable(QStringLiteral("cmdMove_%1").arg(button)));
        };
        QCOMPARE(RowsIn(*selected).last(), "25|Harbour Warehouse|Main gate|00:40");
        QCOMPARE(tour(), "0Ma 20Lo 20Co 20Qu 25Ma");
        move(2); // the first cannot go further up
        move(3);
        QCOMPARE(tour(), "20Lo 0Ma 20Co 20Qu 25Ma");
        QCOMPARE(selected->currentIndex().row(), 1);
        move(2);
        move(1);
        QCOMPARE(tour(), "20Lo 20Co 20Qu 25Ma");
        // The times stay as they are until the tolerance is a number.
        Control<QLineEdit>(*editor, "txtTolerance")->setText("x");
        Control<QTimeEdit>(*editor, "dtpStartTime")->setTime(QTime(8, 0));
        QCOMPARE(RowsIn(*selected).last(), "25|Harbour Warehouse|Main gate|00:40");
        Control<QLineEdit>(*editor, "txtTolerance")->setText("7");
        QCOMPARE(RowsIn(*selected).last(), "25|Harbour Warehouse|Main gate|09:25");

        // From the other site, two in a row: the selection in the list of locations moves on.
        Control<QComboBox>(*editor, "imgCboSites")->setCurrentIndex(1);
        move(0);
        move(0);
        QCOMPARE(tour(), "20Lo 20Co 20Qu 25Ma 10Re 10Se");
        QCOMPARE(RowsIn(*selected).last(), "10|Office Tower|Server room|09:45");

        // By the mouse: in front of the row under the pointer, after the last, out of the list, and
        // cancelled by Escape.
        auto* cue = Control(*editor, "picInsertPtr");
        QVERIFY(cue->isHidden());
        Drag(*locations, 2, *selected, CentreOf(*selected, 1), [&] {
            QVERIFY(cue->isVisible() && Control(*editor, "lblDragDrop")->isVisible());
            QVERIFY(std::abs(cue->geometry().center().y() -
                             selected->visualRect(selected->model()->index(1, 0)).top()) <= 2);
        });
        QVERIFY(cue->isHidden());
        QCOMPARE(tour(), "20Lo 10Ro 20Co 20Qu 25Ma 10Re 10Se");
        Drag(*selected, 0, *selected, CentreOf(*selected, 6) + QPoint(0, 60));
        QCOMPARE(tour(), "10Ro 20Co 20Qu 25Ma 10Re 10Se 20Lo");
        Drag(*selected, 6, *selected, CentreOf(*selected, 0));
        Drag(*selected, 1, *locations, QPoint(30, 100));
        QCOMPARE(tour(), "20Lo 20Co 20Qu 25Ma 10Re 10Se");
        Drag(*selected, 0, *selected, CentreOf(*selected, 3),
             [&] { QTest::keyClick(selected, Qt::Key_Escape); });
        QCOMPARE(tour(), "20Lo 20Co 20Qu 25Ma 10Re 10Se");

        // Another mouse button cancels it too, and a row that is removed meanwhile is not dragged.
        Drag(*selected, 0, *selected, CentreOf(*selected, 3), [&] {
            QTest::mousePress(selected->viewport(), Qt::RightButton);
            QVERIFY(cue->isHidden());
            QTest::mouseRelease(selected->viewport(), Qt::RightButton);
        });
        QVERIFY(cue->isHidden());
        QCOMPARE(tour(), "20Lo 20Co 20Qu 25Ma 10Re 10Se");

        // The Delete key removes a point, but in a text field a letter.
        SelectPlace(*selected, 5);
        selected->setFocus();
        QTest::keyClick(selected, Qt::Key_Delete);
        QTest::keyClick(Control<QLineEdit>(*editor, "txtName"), Qt::Key_Delete);
        QCOMPARE(tour(), "20Lo 20Co 20Qu 25Ma 10Re");
        QTest::mousePress(selected->viewport(), Qt::LeftButton, {}, CentreOf(*selected, 4));
        move(4);
        for (const int y : {10, 40}) {
            QMouseEvent drag(QEvent::MouseMove, QPoint(10, y),
                             selected->viewport()->mapToGlobal(QPoint(10, y)), Qt::NoButton,
                             Qt::LeftButton, {});
            QApplication::sendEvent(selected->viewport(), &drag);
        }
        QTest::mouseRelease(selected->viewport(), Qt::LeftButton);
        QVERIFY(tour().isEmpty());
        for (const char* button : {"cmdMove_1", "cmdMove_2", "cmdMove_3", "cmdEditTime"})
            QVERIFY(!Control<QPushButton>(*editor, button)->isEnabled());
        QVERIFY(Control<QPushButton>(*editor, "cmdMove_0")->isEnabled());
        editor->close();
        QCOMPARE(RowsOf("SELECT * FROM tblTourPoints WHERE lParentID = 2").size(), 5);
    }

    // A confirmed interval becomes that of new points, also in the next editor.
    void IntervalIsKept() {
        auto editor = Editor();
        SelectPlace(*Control<QTreeView>(*editor, "lvwSelected"), 1);
        Script script;
        for (const char* minutes : {"1440", "-1", "x", "90"}) {
            Type(script, "frmEditTime", "txtTime", minutes);
            script.Click("frmEditTime", "cmdOK");
            script.Then([] { return true; });
        }
        script.Start();
        Press(*editor, "cmdEditTime");
        QVERIFY(script.Finish());
        QCOMPARE(m_boxes.TakeTexts(),
                 QStringList(3, "Only valid numbers from 0 to 1439 can be entered"));
        QCOMPARE(RowsIn(*Control<QTreeView>(*editor, "lvwSelected"))[1],
                 "90|Harbour Warehouse|Loading bay 2|00:45");
        editor = Editor();
        Press(*editor, "cmdMove_0");
        QVERIFY(RowsIn(*Control<QTreeView>(*editor, "lvwSelected")).last().startsWith("90|"));
    }

    // Escape and the window's frame ask before a change is lost. Cancel never asks.
    void UnsavedChanges() {
        frmEditButton button(nullptr);
        frmEditTime time(nullptr);
        frmListEdit group(m_link, nullptr);
        frmAddButton capture(m_link, nullptr);
        const auto tour = Editor();
        const QList<std::pair<EditorDialog*, const char*>> editors{{&button, "txtDesc"},
                                                                   {&time, "txtTime"},
                                                                   {&group, "txtName"},
                                                                   {&capture, "txtDesc"},
                                                                   {tour.get(), "txtTolerance"}};
        for (const auto& [editor, field] : editors) {
            editor->show();
            QTest::keyClick(editor, Qt::Key_Escape);
            QVERIFY(!editor->isVisible() && m_boxes.TakeTexts().isEmpty());
            editor->show();
            Control<QLineEdit>(*editor, field)->setText("17");
            QTest::keyClick(editor, Qt::Key_Escape);
            QVERIFY(editor->isVisible()); // the answer was No
            m_boxes.Answers = {MessageAnswer::Yes};
            editor->close();
            QVERIFY(!editor->isVisible() && !editor->OK());
            QCOMPARE(m_boxes.TakeTexts(),
                     QStringList(2, "Your changes have not been saved. Discard them?"));
        }
        const auto moved = Editor();
        Press(*moved, "cmdMove_3"); // a moved point is a change too
        moved->close();
        QCOMPARE(m_boxes.TakeTexts().size(), 1);
        Press(*moved, "cmdCancel");
        QVERIFY(!moved->isVisible() && m_boxes.TakeTexts().isEmpty());
    }

    // A new site can be named in the list at once. The filter hides rows, and what is hidden is
    // neither edited nor deleted.
    void NamingAndFiltering() {
        gConn->Execute("DELETE * FROM tblListItems");
        const auto page = Page(Sites);
        auto* list = Control<QTreeView>(*page, "lvwProgram");
        auto* filter = Control<QLineEdit>(*page, "txtFilter");
        QVERIFY(Control(*page, "listHint")->isVisible());
        page->resize(page->size() + QSize(50, 40));
        QCoreApplication::processEvents();
        QCOMPARE(Control(*page, "listHint")->size(), list->viewport()->size());
        QCOMPARE(list->accessibleDescription(), Control(*page, "listHint")->text());
        for (const char* name : {"Depot", " Depot ", "Yard"}) {
            Press(*page, "cmdSetup_1");
            auto* field = list->viewport()->findChild<QLineEdit*>();
            QVERIFY(field && Control(*page, "listHint")->isHidden());
            field->setText(name);
            QTest::keyClick(field, Qt::Key_Return);
            QTRY_VERIFY(!list->viewport()->findChild<QLineEdit*>());
            QCoreApplication::processEvents();
        }
        QCOMPARE(m_boxes.TakeTexts(), {"That name is already used.  Please enter another name."});
        QCOMPARE(RowsIn(*list), (QStringList{"Depot|", "Site 001|", "Yard|"}));
        filter->setText("yar");
        QVERIFY(list->isRowHidden(0, {}) && list->currentIndex().data() == "Yard");
        filter->setText("none");
        QVERIFY(!Control<QPushButton>(*page, "cmdSetup_2")->isEnabled());
        QCOMPARE(list->accessibleDescription(), "No entry contains this.");
        QTest::keyClick(page.get(), Qt::Key_Delete);
        QVERIFY(m_boxes.TakeTexts().isEmpty());
        Press(*page, "cmdSetup_1"); // a new row is always seen
        QCOMPARE(list->currentIndex().data(), "Site 002");
        QVERIFY(!list->isRowHidden(0, {}));
        // A name that is being typed is saved, however the list is left.
        auto* tabs = Control<QTabBar>(*page, "tabSetup");
        const auto typeName = [&](const char* name) {
            auto* field = list->viewport()->findChild<QLineEdit*>();
            field->setText(name);
            field->setFocus();
        };
        typeName("Quay");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(tabs->currentIndex(), EventBooks);
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(Sites).center());
        QCOMPARE(RowsIn(*list), (QStringList{"Depot|", "Quay|", "Site 001|", "Yard|"}));
        const auto editRow = [&](int row) {
            SelectPlace(*list, row);
            list->edit(list->currentIndex());
        };
        QTRY_VERIFY(!list->viewport()->findChild<QLineEdit*>());
        editRow(1);
        typeName("Wharf");
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(EventBooks).center());
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(Sites).center());
        QTRY_VERIFY(!list->viewport()->findChild<QLineEdit*>());
        editRow(2);
        typeName("Weir");
        page->close();
        page->show();
        QCOMPARE(RowsIn(*list), (QStringList{"Depot|", "Site 001|", "Weir|", "Yard|"}));
        // After a deletion no hidden row is chosen: "Site 001" follows "Depot".
        filter->setText("D");
        SelectPlace(*list, 0);
        m_boxes.Answers += MessageAnswer::Yes;
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(list->currentIndex().data(), "Yard");
    }

    // Columns fit their rows, and stay as the operator made them: in a narrower list, and in the
    // next run.
    void ColumnsAreKept() {
        gConn->Execute(
            "UPDATE tblListItems SET tName = 'A site with a name of thirty-eight letters' "
            "WHERE ID = 1");
        auto page = Page(Sites);
        const auto header = [&] { return Control<QTreeView>(*page, "lvwProgram")->header(); };
        QTRY_COMPARE(header()->length(), header()->viewport()->width());
        const QAbstractItemView* view = Control<QTreeView>(*page, "lvwProgram");
        QVERIFY(header()->sectionSize(0) > view->sizeHintForColumn(0));
        header()->resizeSection(0, header()->length() / 4);
        QCOMPARE(header()->length(), header()->viewport()->width());
        page->resize(600, 400);
        QVERIFY(std::abs(header()->sectionSize(0) * 4 - header()->length()) < 12);
        Control<QTabBar>(*page, "tabSetup")->setCurrentIndex(TourTab);
        QVERIFY(header()->sectionSize(0) * 3 > header()->length());
        page = Page(Sites);
        QVERIFY(std::abs(header()->sectionSize(0) * 4 - header()->length()) < 12);
    }

    // They fit rows that come later; short names stay whole, and a tool tip shows a long one.
    void ColumnsFollowTheirRows() {
        const QString name = QStringLiteral("test"), wide(80, u'w');
        const auto make = [&] {
            auto list = std::make_unique<QTreeWidget>();
            list->setHeaderLabels({"A", "B"});
            list->setRootIsDecorated(false);
            list->resize(200, 200);
            ManageColumns(*list, name);
            list->show();
            return list;
        };
        auto list = make();
        new QTreeWidgetItem(list.get(), {"A name of letters", wide});
        const QAbstractItemView* view = list.get();
        QVERIFY(view->sizeHintForColumn(0) > list->columnWidth(0));
        QTRY_VERIFY(view->sizeHintForColumn(0) <= list->columnWidth(0));
        const QPoint cell = list->visualRect(list->model()->index(0, 1)).topLeft() + QPoint(9, 9);
        QHelpEvent help(QEvent::ToolTip, cell, list->viewport()->mapToGlobal(cell));
        QCoreApplication::sendEvent(list->viewport(), &help);
        QVERIFY(QToolTip::text().contains(wide));
        list->header()->moveSection(0, 1);
        list.reset();
        list = make();
        QCOMPARE(list->header()->visualIndex(0), 1);
        list.reset();
        SaveSetting(SettingsApplication, QStringLiteral("Columns"), name, "1:0 0:-5");
        list = make();
        QVERIFY(list->columnWidth(0) > 0 && list->columnWidth(1) > 0);
    }

    // What is typed in the list of sites searches; only an entry that is chosen becomes the value.
    void SitesAreSearched() {
        const auto editor = Editor();
        auto* sites = Control<QComboBox>(*editor, "imgCboSites");
        auto* search = Control<QLineEdit>(*sites, "txtSearch");
        sites->setFocus();
        QTest::keyClick(sites, Qt::Key_T); // in both names
        QTest::keyClicks(search, "OW");
        QCOMPARE(RowsIn(*Control<QListView>(*sites, "lvwFound")), QStringList("Office Tower"));
        QTest::keyClick(search, Qt::Key_Escape);
        QCOMPARE(sites->currentText(), "Harbour Warehouse");
        sites->showPopup();
        QTest::keyClicks(Control<QListView>(*sites, "lvwFound"), "xyz");
        QTest::keyClick(search, Qt::Key_Return);
        auto* popup = Control<QFrame>(*sites, "searchPopup");
        QVERIFY(popup->findChild<QLabel*>()->isVisible()); // nothing was found
        QCOMPARE(sites->currentText(), "Harbour Warehouse");
        const QSignalSpy activated(sites, &QComboBox::activated);
        search->setText("tow");
        QTest::keyClick(search, Qt::Key_Return);
        QVERIFY(!search->isVisible() && editor->isVisible());
        QCOMPARE(sites->currentText(), "Office Tower");
        QCOMPARE(activated.count(), 1);
        sites->addItem(QString(60, u'w'));
        sites->showPopup();
        QCOMPARE(Control<QListView>(*sites, "lvwFound")->currentIndex().data(), "Office Tower");
        QVERIFY(popup->width() > sites->width());
        sites->hidePopup();
        QVERIFY(RowsIn(*Control<QTreeView>(*editor, "lvwLocations"))
                    .join(u'\n')
                    .contains("Server room"));
    }

    // A dialog opens as it was left, but not beyond the screen.
    void DialogsRememberTheirPlace() {
        const auto shown = [&](const QRect& place) {
            frmEditButton dialog(nullptr);
            RememberPlace(dialog);
            dialog.show();
            const QRect was(dialog.pos(), dialog.size());
            dialog.move(place.topLeft());
            dialog.resize(place.size());
            dialog.hide();
            return was;
        };
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        const QRect inside(30, 40, 420, 260);
        shown(inside);
        QCOMPARE(shown(QRect(-5000, 40, 9000, 260)), inside);
        QVERIFY(screen.contains(shown(QRect(screen.right() - 100, 40, 420, 260))));
        QVERIFY(screen.contains(shown(inside)));
        // Saved when the texts were shorter.
        SaveSetting(SettingsApplication, QStringLiteral("Windows"), "frmManualID", "30 40 20 20");
        frmManualID dialog(nullptr);
        dialog.show();
        const auto* text = dialog.findChild<QLabel*>();
        QVERIFY(text->height() >= text->heightForWidth(text->width()));
    }

    // What cannot be saved stays in the editor.
    void UnsavedTourComesBack() {
        const auto page = Page(TourTab);
        const QStringList before = ContentOfStore();
        gConn->Execute("CREATE TRIGGER refuse BEFORE INSERT ON tblTourPoints WHEN NEW.lIndex = 2 "
                       "BEGIN SELECT RAISE(ABORT, 'no room'); END");
        const QString editor = QStringLiteral("frmEditTour");
        const auto name = [=] { return Script::Find<QLineEdit>(editor, "txtName"); };
        Script script;
        script.Click(editor, "cmdMove_1");
        Type(script, editor, "txtName", "Walk");
        script.Click(editor, "cmdOK");
        script.Then([&] {
            if (m_boxes.Messages.isEmpty() || !name() || name()->text() != u"Walk")
                return false;
            gConn->Execute("DROP TRIGGER refuse");
            name()->setText("Day round"); // its old name is free for it
            return ContentOfStore() == before;
        });
        script.Click(editor, "cmdOK");
        script.Start();
        Press(*page, "cmdSetup_0");
        QVERIFY(script.Finish());
        QVERIFY(m_boxes.TakeTexts().join(u'|').startsWith(
            "The tour could not be saved. Nothing was changed.\n"));
        QCOMPARE(RowsIn(*Control<QTreeView>(*page, "lvwProgram")).first().left(9), "Day round");
        QCOMPARE(RowsOf("SELECT * FROM tblTourPoints WHERE lParentID = 1").size(), 3);
    }

    void TourEditorChecks_data() {
        // `neighbours`: the main gate is moved beside itself.
        const TestTable<QString, QString, bool, QString, QString> row(
            "name", "tolerance", "neighbours", "message", "focus");
        const QString used = "That name is already used.  Please enter another name.",
                      none = "You must enter a name for this group",
                      range = "The tolerance value can only range from 0 to 59 minutes",
                      twice = "Cannot assign two sequential tour points with the same location";
        row("new name, half a minute", " Late round ", "5.5", false, "", "");
        row("used", "Day round ", "60", true, used, "txtName");
        row("no name", "  ", "60", false, none, "txtName");
        row("neighbours", "Night round", "x", true, twice, "lvwSelected");
        row("tolerance", "Night round", "60", false, range, "txtTolerance");
    }
    void TourEditorChecks() {
        QFETCH(QString, name);
        QFETCH(QString, tolerance);
        QFETCH(bool, neighbours);
        QFETCH(QString, message);
        const auto editor = Editor();
        Control<QLineEdit>(*editor, "txtName")->setText(name);
        Control<QLineEdit>(*editor, "txtTolerance")->setText(tolerance);
        if (neighbours) {
            SelectPlace(*Control<QTreeView>(*editor, "lvwSelected"), 4);
            for (int i = 0; i < 3; ++i)
                Press(*editor, "cmdMove_2");
        }
        Press(*editor, "cmdOK");
        QCOMPARE(m_boxes.TakeTexts().join(u'|'), message);
        QCOMPARE(editor->OK(), message.isEmpty());
        if (message.startsWith(u"Cannot"))
            QCOMPARE(Control<QTreeView>(*editor, "lvwSelected")->currentIndex().row(), 1);
        QCOMPARE(editor->isVisible(), !message.isEmpty());
        QCOMPARE(Control<QLineEdit>(*editor, "txtName")->text(), name);
        if (editor->OK()) {
            QCOMPARE(editor->ListName, name.trimmed());
            QCOMPARE(editor->Tolerance, 6);
        } else {
            QTEST(editor->focusWidget()->objectName(), "focus");
        }
        QCOMPARE(RowsOf("SELECT * FROM tblTourPoints WHERE lParentID = 2").size(), 5);
    }
};

QTEST_MAIN(SetupWindowsTest)
#include "SetupWindowsTest.moc"
