#include "frmCopyTour.h"

#include "Recordset.h"
#include "WindowTools.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmCopyTour.h"

frmCopyTour::frmCopyTour(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmCopyTour>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, [](const QString& text) { return Translate(text); });
    Guarded("Form_Load of Form frmCopyTour", [this] {
        Recordset tours;
        tours.CursorLocation = adUseClient;
        tours.Open(QStringLiteral("SELECT ID, tName, dtStartTime, iTolerance,tDesc FROM tblTours "
                                  "ORDER BY tName ;"),
                   *gConn);
        for (; !tours.Eof(); tours.MoveNext())
            m_ui->cboTours->addItem(tours.Text(u"tName") + QStringLiteral(" - ") +
                                        tours.Text(u"tDesc"),
                                    static_cast<int>(tours.Number(u"ID")));
    });
    connect(m_ui->cmdOK, &QPushButton::clicked, this, [this] { accept(); });
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmCopyTour::~frmCopyTour() = default;

int frmCopyTour::TourID() const { return m_ui->cboTours->currentData().toInt(); }
