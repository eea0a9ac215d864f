#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace valmerix {

/// A LIKE pattern folded once, to be held against many texts: blind to case and accents, "%" any run of
/// characters, "_" one character, both plain behind the escape character. UTF-8 all along.
class PatronLike
{
public:
    /// `escape`: one character, or nothing.
    explicit PatronLike(std::string_view patron, std::string_view escape = {});

    /// Not to be called from two threads at once: it folds into a buffer of its own.
    bool Casa(std::string_view texto) const;

private:
    std::vector<std::string> tramos_; // what stands between the "%"
    mutable std::string plegado_;
};

} // namespace valmerix
