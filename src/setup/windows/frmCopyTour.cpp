#include "frmCopyTour.h"

#include "LookUps.h"
#include "WindowPlace.h"
#include "WindowTools.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmCopyTour.h"

frmCopyTour::frmCopyTour(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmCopyTour>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    RememberPlace(*this);
    Guarded("Form_Load of Form frmCopyTour", [this] {
        for (const Tour& tour : ToursByName())
            m_ui->cboTours->addItem(tour.name + QStringLiteral(" - ") + tour.description, tour.id);
    });
    connect(m_ui->cmdOK, &QPushButton::clicked, this, [this] { accept(); });
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmCopyTour::~frmCopyTour() = default;

int frmCopyTour::TourID() const { return m_ui->cboTours->currentData().toInt(); }
