#include "garde/niveau.h"

#include "garde/sauvegarde.h"
#include "store/preuve.h"

using store::Erreur;

namespace {

const QString indexUnique = u"create unique index"_qs;

qint64 version(store::BaseNative &base)
{
    return base.valeurUnique(u"pragma user_version"_qs).entier();
}

void passe(store::BaseNative &base, const EtapeBase &etape)
{
    base.executeScript(u"begin immediate"_qs);
    try {
        base.executeScript(etape.script);
        base.executeScript(u"pragma user_version = %1"_qs.arg(etape.version));
        base.executeScript(u"commit"_qs);
    } catch (...) {
        if (!base.horsTransaction())
            base.executeScript(u"rollback"_qs);
        throw;
    }
}

/// Rows that an index no longer kept apart must not keep the program from starting: without the rule it still serves.
void complete(store::BaseNative &base, const QString &instruction)
{
    constexpr int cleDouble = 19; // the engine's number
    try {
        base.executeScript(instruction);
    } catch (const Erreur &erreur) {
        if ((erreur.numero() & 0xff) != cleDouble || !instruction.startsWith(indexUnique))
            throw;
        base.executeScript(u"create index"_qs + instruction.mid(indexUnique.size()));
    }
}

} // namespace

const std::vector<EtapeBase> &EtapesBase()
{
    static const std::vector<EtapeBase> etapes;
    return etapes;
}

void MetANiveau(Partage &partage, const std::vector<EtapeBase> &etapes)
{
    store::BaseNative &base = partage.BaseDonnees.native();
    bool copiee = false;
    for (const EtapeBase &etape : etapes) {
        if (version(base) >= etape.version)
            continue;
        if (!std::exchange(copiee, true)) {
            if (const BilanCopie copie = SauveBase(partage, RaisonCopie::Restauration); copie.echouee())
                throw Erreur(Erreur::DossierProtege,
                             u"La base doit passer à une nouvelle version, mais sa copie de "
                             u"sécurité n'a pas pu être faite : %1"_qs.arg(copie.cause));
        }
        passe(base, etape);
    }
    if (copiee)
        partage.BaseDonnees.RelitSchema();
}

void CompleteBase(store::Database &base, const QString &complement)
{
    store::BaseNative &native = base.native();
    const QString schema = u"pragma schema_version"_qs;
    const store::Valeur avant = native.valeurUnique(schema);
    for (const QString &instruction : complement.split(u'\n', Qt::SkipEmptyParts))
        complete(native, instruction);
    if (native.valeurUnique(schema) != avant)
        base.RelitSchema();
}
