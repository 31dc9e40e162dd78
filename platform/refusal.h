// What is thrown to tell a host why something isn't done that it asks for.
#pragma once

#include <stdexcept>

namespace orrelix {

// A call that ends in it gives DISP_E_EXCEPTION and this sentence.
class CRefusal : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace orrelix
