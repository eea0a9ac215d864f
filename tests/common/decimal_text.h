#pragma once

#include <string>

namespace valmerix::pruebas {

/// Decimal arithmetic on text, slow and plain, to hold the program's own against.
struct TextoDecimal
{
    bool negativo = false;
    std::string enteros;   ///< digits, without zeros at the beginning, "" for none
    std::string decimales; ///< digits

    bool esCero() const;
};

/// The exact value of the double, digit by digit.
TextoDecimal Exacto(double valor);

/// The double's text of 15 significant digits.
TextoDecimal QuinceCifras(double valor);

enum class Mitades { FueraDeCero, AlPar };

TextoDecimal Redondeado(const TextoDecimal& numero, size_t decimales, Mitades mitades);

/// The whole number of ten-thousandths, as text: "-5000" for -0,5.
std::string Diezmilesimas(const TextoDecimal& numero);

/// What `patron` shows of `numero`.
std::string Mostrado(const TextoDecimal& numero, const std::string& patron);

} // namespace valmerix::pruebas
