#include "donnees/requetes.h"

namespace donnees {

store::Valeur ValeurUnique(store::Database &base, const QString &sql)
{
    const store::Recordset resultat = base.OpenRecordset(sql, store::dbOpenSnapshot);
    return resultat.Eof() ? store::Valeur() : resultat[0].valeur();
}

QString EntreApostrophes(const QString &texte)
{
    if (texte.contains(u'\''))
        throw store::Erreur(store::Erreur::Instruction,
                            u"L'apostrophe de « %1 » coupe l'instruction : rien n'a été fait."_qs.arg(texte.left(200)));
    return u'\'' + texte + u'\'';
}

} // namespace donnees
