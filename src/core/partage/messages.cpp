#include "partage/messages.h"

#include <stdexcept>

namespace {

std::size_t place(int numero)
{
    if (numero < 0 || numero >= TableMessages::nombre)
        throw std::out_of_range("Le message " + std::to_string(numero)
                                + " n'existe pas : les numéros vont de 0 à 180.");
    return static_cast<std::size_t>(numero);
}

} // namespace

const QString &TableMessages::operator()(int numero) const
{
    return m_textes[place(numero)];
}

void TableMessages::pose(int numero, const QString &texte)
{
    m_textes[place(numero)] = texte;
}
