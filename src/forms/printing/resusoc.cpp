#include "printing/resusoc.h"

#include "donnees/clubs.h"
#include "fenetres/formulaires.h"
#include "grille/flexgrid.h"
#include "noms/formes.h"
#include "printing/imprime_equipe.h"
#include "printing/palmares.h"
#include "ui_resusoc.h"

namespace {

/// Captions show an ampersand only when it is doubled.
QString enLegende(QString texte)
{
    return texte.replace(u'&', u"&&"_qs);
}

QString deLegende(const QRadioButton &option)
{
    return option.text().replace(u"&&"_qs, u"&"_qs);
}

void poseEquipe(QRadioButton &equipe, QRadioButton &club, const QString &texte)
{
    const qsizetype parenthese = texte.indexOf(u'(');
    const QString nomClub = parenthese < 0 ? QString() : texte.mid(parenthese + 1).chopped(1);
    equipe.setText(enLegende(texte.left(parenthese)));
    club.setText(enLegende(nomClub));
    club.setEnabled(!donnees::EstPanache(nomClub));
}

} // namespace

Resusoc::Resusoc(const Contexte &contexte, QWidget *parent)
    : Formulaire(contexte, parent)
    , m_ui(std::make_unique<Ui::Resusoc>())
{
    m_ui->setupUi(this);
    prepareControles();
    surClick(m_ui->imprimer, [this] { imprimer_Click(); });
}

Resusoc::~Resusoc() = default;

void Resusoc::LegendesResusoc()
{
    FenetreDessus(*this, false);
    setWindowTitle(mes(35));
    m_ui->Label1->setText(mes(36));
    m_ui->Label2->setText(mes(18));
    m_ui->imprimer->setToolTip(mes(37));
}

void Resusoc::Form_Load()
{
    LegendesResusoc();
    m_ui->tableau->hide();
}

void Resusoc::propose(int tableau, const QString &equipe1, const QString &equipe2)
{
    poseEquipe(*m_ui->Option1, *m_ui->Option3, equipe1);
    poseEquipe(*m_ui->Option2, *m_ui->Option4, equipe2);
    // Read aloud, an option tells what its heading shows; two teams can be of one club.
    m_ui->Option1->setAccessibleName(mes(36) + u" 1 : "_qs + deLegende(*m_ui->Option1));
    m_ui->Option2->setAccessibleName(mes(36) + u" 2 : "_qs + deLegende(*m_ui->Option2));
    m_ui->Option3->setAccessibleName(mes(18) + u" 1 : "_qs + deLegende(*m_ui->Option3));
    m_ui->Option4->setAccessibleName(mes(18) + u" 2 : "_qs + deLegende(*m_ui->Option4));
    m_ui->tableau->setText(QString::number(tableau));
    m_ui->Option1->setChecked(true);
}

void Resusoc::imprimer_Click()
{
    const QString grille = u"Thonneur_"_qs + QString::number(int(store::Val(m_ui->tableau->text())));
    const auto *liste = qobject_cast<palmares *>(formulaires().Charge(formes::palmares));
    const auto *lignes = liste == nullptr ? nullptr : liste->findChild<FlexGrid *>(grille);
    if (lignes == nullptr)
        return;
    const std::pair<const QRadioButton *, GenreFeuille> options[] = {{m_ui->Option1, GenreFeuille::Equipe},
                                                                     {m_ui->Option2, GenreFeuille::Equipe},
                                                                     {m_ui->Option3, GenreFeuille::Club},
                                                                     {m_ui->Option4, GenreFeuille::Club}};
    for (const auto &[option, genre] : options) {
        if (!option->isChecked() || !option->isEnabled())
            continue;
        ImprimeEquipe(contexte(), *lignes, liste->avecNoms(), deLegende(*option), genre);
        return;
    }
}
