#include "fenetres/alerte.h"

#include "ui_alerte.h"

#include <QElapsedTimer>

namespace {

constexpr int patiencePeintureMs = 500;

} // namespace

Alerte::Alerte(const Contexte &contexte, QWidget *parent)
    : Formulaire(contexte, parent)
    , m_ui(std::make_unique<Ui::Alerte>())
{
    m_ui->setupUi(this);
}

Alerte::~Alerte() = default;

void Alerte::Form_Load()
{
    FenetreDessus(*this, true);
    m_sablier.emplace();
    qApp->installEventFilter(this);
}

void Alerte::Form_Unload()
{
    qApp->removeEventFilter(this);
    m_sablier.reset();
}

bool Alerte::eventFilter(QObject *objet, QEvent *evenement)
{
    // The desktop asks windows to close whatever the operator's keys and clicks are doing.
    if (evenement->type() == QEvent::Close && evenement->spontaneous()) {
        evenement->ignore();
        return true;
    }
    if (evenement->type() == QEvent::Paint && objet == m_ui->Text1->viewport())
        m_peinte = true;
    return false;
}

void Alerte::dit(const QString &texte)
{
    m_ui->Text1->setPlainText(texte);
    if (m_peinte)
        m_ui->Text1->viewport()->repaint();
}

void Alerte::attendPeinture()
{
    QElapsedTimer attente;
    attente.start();
    do {
        DoEvents();
    } while (!m_peinte && !attente.hasExpired(patiencePeintureMs));
}
