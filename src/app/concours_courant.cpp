#include "app/concours_courant.h"

#include "app/routines.h"

qint16 JoueursDuType(const QString &type, qint16 sinon)
{
    switch (type.isEmpty() ? u' ' : type.front().unicode()) {
    case u'1':
        return 2;
    case u'2':
        return 3;
    case u'3':
        return 1;
    default:
        return sinon;
    }
}

qint32 ChargeConcours(Partage &partage, qint32 &numero)
{
    if (numero == 0)
        numero = qint32(
            ValeurUnique(partage, u"Select max(concours) as lequel from concours, dbOpensnapshot"_qs).entierOu(0));
    if (numero <= 0)
        return numero;
    store::Recordset concours = partage.BaseDonnees.OpenRecordset(u"concours", store::dbOpenTable);
    concours.Index(u"primarykey");
    concours.Seek(u"=", {numero});
    if (concours.NoMatch())
        return numero;
    partage.DateConcours = FormateDate(partage, concours[u"date"]);
    partage.LieuConcours = concours[u"lieu"].texte();
    partage.CategorieConcours = concours[u"categorie"].texte();
    partage.AvecRepechage = concours[u"repeche"].booleen();
    partage.TourCourant = qint16(concours[u"tourpri"].entierOu(0));
    partage.NbJoueurs = JoueursDuType(concours[u"type"].texte(), partage.NbJoueurs);
    return numero;
}
