#include "partage/concours_courant.h"

#include "partage/routines.h"

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

void RetientConcours(Partage &partage, const donnees::Concours &concours)
{
    partage.DateConcours = FormateDate(partage, concours.date);
    partage.LieuConcours = concours.lieu;
    partage.CategorieConcours = concours.categorie;
    partage.AvecRepechage = concours.repechage;
    partage.TourCourant = qint16(concours.tour);
}

qint32 ChargeConcours(Partage &partage, qint32 &numero)
{
    if (numero == 0)
        numero = donnees::DernierConcours(partage.BaseDonnees);
    if (numero <= 0)
        return numero;
    const std::optional<donnees::Concours> concours = donnees::TrouveConcours(partage.BaseDonnees, numero);
    if (!concours)
        return numero;
    RetientConcours(partage, *concours);
    partage.NbJoueurs = JoueursDuType(concours->type, partage.NbJoueurs);
    return numero;
}

QString NumeroConcours(qint64 numero)
{
    return ZeroPad(numero, chiffresConcours);
}

QStringList RetrouveConcours(Partage &partage)
{
    QStringList numeros;
    qint32 dernier = 0;
    bool retrouve = false;
    for (const donnees::Concours &concours : donnees::ListeConcours(partage.BaseDonnees)) {
        dernier = concours.numero;
        numeros += NumeroConcours(dernier);
        retrouve = retrouve || (dernier > 0 && dernier == partage.ConcoursCourant);
    }
    if (!retrouve && !numeros.isEmpty()) {
        partage.ConcoursCourant = dernier;
        ChargeConcours(partage, partage.ConcoursCourant);
    }
    return numeros;
}
