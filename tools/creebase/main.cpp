#include "fabrique.h"
#include "lecteur.h"
#include "store/erreur.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>

namespace {

int refuse(const QString &phrase)
{
    std::fprintf(stderr, "creebase : %s\n", qUtf8Printable(phrase));
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QCommandLineOption remplace(u"remplace"_qs,
                                      u"Remplace la base qui existe déjà, avec tout ce qu'elle contient."_qs);
    const QCommandLineOption complement(
        u"complement"_qs, u"Écrit à la place de la base les instructions qui donnent à une base ce qui lui manque."_qs);
    QCommandLineParser options;
    options.setApplicationDescription(u"Fabrique la base de VarloTour à partir de ses lignes lisibles."_qs);
    options.addHelpOption();
    options.addOptions({remplace, complement});
    options.addPositionalArgument(u"dossier"_qs, u"Dossier des données."_qs);
    options.addPositionalArgument(u"base"_qs, u"Fichier à fabriquer."_qs);
    options.process(application);

    const QStringList arguments = options.positionalArguments();
    if (arguments.size() != 2)
        return refuse(u"deux arguments sont attendus : le dossier des données et le fichier à fabriquer"_qs);
    if (QFileInfo::exists(arguments[1]) && !options.isSet(remplace) && !options.isSet(complement))
        return refuse(u"%1 existe déjà et peut contenir des concours ; --remplace l'efface"_qs.arg(arguments[1]));
    try {
        if (options.isSet(complement))
            ecritComplement(arguments[0], arguments[1]);
        else
            creeBase(arguments[0], arguments[1]);
    } catch (const ErreurDonnees &erreur) {
        return refuse(erreur.phrase());
    } catch (const store::Erreur &erreur) {
        return refuse(erreur.phrase());
    }
    return EXIT_SUCCESS;
}
