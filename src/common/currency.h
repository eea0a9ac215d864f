#pragma once

#include <QString>
#include <compare>
#include <optional>
#include <stdexcept>

namespace valmerix {

/// An amount does not fit: beyond ±922.337.203.685.477,5807, not a number, or an integer field too large.
class ErrorDesbordamiento : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Money: a signed 64-bit count of ten-thousandths. Sums and differences are exact; every other
/// operation is formed in double and brought back with `de`.
class Currency
{
public:
    constexpr Currency() = default;

    static constexpr Currency deDiezmilesimas(qint64 n)
    {
        Currency c;
        c.n_ = n;
        return c;
    }

    /// The multiple of 0,0001 nearest to the exact value of `importe`, ties to even.
    /// Throws ErrorDesbordamiento when it does not fit or is not finite.
    static Currency de(double importe);

    constexpr qint64 diezmilesimas() const { return n_; }
    double aDouble() const { return static_cast<double>(n_) / 10000.0; }

    /// Plain text with a point and four decimals: "16923.0800", "-0.5000".
    QString decimal() const;
    /// What `decimal` has written; nothing for any other text.
    static std::optional<Currency> deDecimal(QStringView texto);

    constexpr bool esCero() const { return n_ == 0; }

    /// Exact; throw ErrorDesbordamiento when the result does not fit.
    Currency operator+(Currency otro) const;
    Currency operator-(Currency otro) const;
    Currency& operator+=(Currency otro) { return *this = *this + otro; }

    // The check takes the 0 that a defaulted comparison is compared with for a null pointer.
    constexpr auto operator<=>(const Currency&) const = default; // NOLINT(modernize-use-nullptr)

private:
    qint64 n_ = 0;
};

} // namespace valmerix
