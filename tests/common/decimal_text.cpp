#include "common/decimal_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <memory>

namespace valmerix::pruebas {

namespace {

TextoDecimal Separado(const std::string& llano, bool negativo)
{
    const size_t punto = llano.find('.');
    TextoDecimal numero;
    numero.negativo = negativo;
    numero.enteros = llano.substr(0, punto);
    numero.enteros.erase(0, numero.enteros.find_first_not_of('0'));
    if (punto != std::string::npos) {
        numero.decimales = llano.substr(punto + 1);
    }
    return numero;
}

/// Adds one to the last digit of a text of digits.
std::string MasUno(std::string digitos)
{
    for (size_t i = digitos.size(); i-- > 0;) {
        if (digitos[i] != '9') {
            ++digitos[i];
            return digitos;
        }
        digitos[i] = '0';
    }
    return "1" + digitos;
}

} // namespace

bool TextoDecimal::esCero() const
{
    return enteros.empty() && decimales.find_first_not_of('0') == std::string::npos;
}

TextoDecimal Exacto(double valor)
{
    const auto buffer = std::make_unique<std::array<char, 1500>>();
    char* const inicio = buffer->data();
    const auto fin =
        std::to_chars(inicio, inicio + buffer->size(), std::fabs(valor), std::chars_format::fixed, 1100).ptr;
    return Separado(std::string(inicio, fin), std::signbit(valor));
}

TextoDecimal QuinceCifras(double valor)
{
    std::array<char, 40> buffer{};
    const auto fin = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(valor),
                                   std::chars_format::scientific, 14)
                         .ptr;
    const std::string texto(buffer.data(), fin);
    const size_t e = texto.find('e');
    std::string digitos = texto.substr(0, 1) + texto.substr(2, e - 2);
    const int corrimiento = std::stoi(texto.substr(e + 1)) + 1;
    if (corrimiento <= 0) {
        digitos.insert(0, static_cast<size_t>(1 - corrimiento), '0');
        digitos.insert(1, ".");
    } else {
        const auto enteros = static_cast<size_t>(corrimiento);
        if (digitos.size() < enteros) {
            digitos.append(enteros - digitos.size(), '0');
        }
        digitos.insert(enteros, ".");
    }
    return Separado(digitos, std::signbit(valor));
}

TextoDecimal Redondeado(const TextoDecimal& numero, size_t decimales, Mitades mitades)
{
    std::string todos = "0" + numero.enteros + numero.decimales;
    const std::string sobrante =
        numero.decimales.size() > decimales ? numero.decimales.substr(decimales) : std::string();
    todos.resize(todos.size() - sobrante.size());
    const bool mitadJusta =
        !sobrante.empty() && sobrante[0] == '5' && sobrante.find_first_not_of('0', 1) == std::string::npos;
    bool sube = !sobrante.empty() && sobrante[0] >= '5';
    if (mitadJusta && mitades == Mitades::AlPar) {
        sube = (todos.back() - '0') % 2 == 1;
    }
    if (sube) {
        todos = MasUno(todos);
    }
    if (numero.decimales.size() < decimales) {
        todos.append(decimales - numero.decimales.size(), '0');
    }
    todos.insert(todos.size() - decimales, ".");
    return Separado(todos, numero.negativo);
}

std::string Diezmilesimas(const TextoDecimal& numero)
{
    const TextoDecimal redondo = Redondeado(numero, 4, Mitades::AlPar);
    if (redondo.esCero()) {
        return "0";
    }
    std::string todos = redondo.enteros + redondo.decimales;
    todos.erase(0, todos.find_first_not_of('0'));
    return (redondo.negativo ? "-" : "") + todos;
}

std::string Mostrado(const TextoDecimal& numero, const std::string& patron)
{
    const size_t punto = patron.find('.');
    const std::string enteros = patron.substr(0, punto);
    const std::string decimales = punto == std::string::npos ? std::string() : patron.substr(punto + 1);

    TextoDecimal redondo = Redondeado(numero, decimales.size(), Mitades::FueraDeCero);
    const size_t forzados =
        decimales.find_last_of('0') == std::string::npos ? 0 : decimales.find_last_of('0') + 1;
    while (redondo.decimales.size() > forzados && redondo.decimales.back() == '0') {
        redondo.decimales.pop_back();
    }
    std::string sinComas;
    for (const char c : enteros) {
        sinComas += c == ',' ? "" : std::string(1, c);
    }
    const size_t primerCero = sinComas.find('0');
    const size_t minimo = primerCero == std::string::npos ? 0 : sinComas.size() - primerCero;
    std::string texto = redondo.enteros;
    texto.insert(0, texto.size() < minimo ? minimo - texto.size() : 0, '0');
    if (enteros.find(',') != std::string::npos) {
        for (size_t i = texto.size(); i > 3;) {
            i -= 3;
            texto.insert(i, ".");
        }
    }
    const bool signo = redondo.negativo && !redondo.esCero();
    return (signo ? "-" : "") + texto + (punto == std::string::npos ? "" : ",") + redondo.decimales;
}

} // namespace valmerix::pruebas
