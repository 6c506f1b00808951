#include "competitions/duplication.h"

#include "donnees/concours.h"
#include "fenetres/formulaires.h"
#include "fenetres/sablier.h"
#include "noms/formes.h"

void DupliqueConcours(const Contexte &contexte, const QString &numero)
{
    const QString n = numero.trimmed();
    const bool existe = store::EstNumerique(n) && donnees::TrouveConcours(contexte.partage.BaseDonnees, n).has_value();
    if (!existe) {
        contexte.boites.MsgBox(u"Vous devez selectionner un concours existant "_qs);
        return;
    }
    const qint32 m = [&] {
        const Sablier sablier;
        return donnees::CopieConcours(contexte.partage.BaseDonnees, n);
    }();
    contexte.boites.MsgBox(u"Concours dupliqué sous le numéro "_qs + QString::number(m));
    contexte.formulaires.Decharge(formes::Econcours);
    contexte.formulaires.Montre(formes::Econcours);
    DoEvents();
}
