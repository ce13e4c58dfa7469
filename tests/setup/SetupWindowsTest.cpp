#include <QTest>
class SetupWindowsTest : public QObject {
    Q_OBJECT
};
QTEST_MAIN(SetupWindowsTest)
#include "SetupWindowsTest.moc"
