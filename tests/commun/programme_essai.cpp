#include "commun/programme_essai.h"

#include "partage/routines.h"

namespace {

bool attendActive(const QWidget *fenetre)
{
    return QTest::qWaitFor([fenetre] { return fenetre == QApplication::activeWindow(); });
}

} // namespace

void ProgrammeEssai::SetUp()
{
    ASSERT_TRUE(demarre());
}

void ProgrammeEssai::TearDown()
{
    termine();
    boites.verifie();
}

void ProgrammeEssai::redemarre()
{
    termine();
    ASSERT_TRUE(demarre());
}

void ProgrammeEssai::ouvreFamille(const QString &bouton, const QString &nomForme)
{
    ouvre(bouton);
    ASSERT_TRUE(attendActive(forme(nomForme)));
}

void ProgrammeEssai::active(const QString &nomForme)
{
    QWidget *fenetre = forme(nomForme);
    ASSERT_NE(fenetre, nullptr);
    if (fenetre != QApplication::activeWindow())
        fenetre->activateWindow();
    ASSERT_TRUE(attendActive(fenetre));
}

void ProgrammeEssai::clic(const QString &nomForme, const QString &nom)
{
    active(nomForme);
    ASSERT_TRUE(visible(nomForme, nom)) << nom.toStdString();
    clique(nomForme, nom);
}

void ProgrammeEssai::remplit(const QString &nomForme, const QString &nom, const QString &saisie)
{
    clic(nomForme, nom);
    champ(nomForme, nom)->setFocus();
    champ(nomForme, nom)->selectAll();
    if (saisie.isEmpty())
        touche(Qt::Key_Delete);
    tape(saisie);
}

QLineEdit *ProgrammeEssai::champ(const QString &nomForme, const QString &nom)
{
    if (const auto *combo = qobject_cast<QComboBox *>(controle(nomForme, nom)))
        return combo->lineEdit();
    return controle<QLineEdit>(nomForme, nom);
}
