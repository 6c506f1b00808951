#include "fenetres/copie_prealable.h"

#include "fenetres/sablier.h"

bool GardeUneCopie(const Contexte &contexte, RaisonCopie raison)
{
    const Sablier sablier;
    const BilanCopie bilan = SauveBase(contexte.partage, raison);
    return !bilan.echouee() || ContinueSansCopie(contexte.boites, bilan.cause);
}

bool ContinueSansCopie(Boites &boites, const QString &cause)
{
    const QString question = u"La copie n'a pas pu être faite : %1\r\nContinuer sans elle ?"_qs.arg(cause);
    return boites.MsgBox(question, vbYesNo | vbExclamation | vbDefaultButton2) == ReponseBoite::Oui;
}
