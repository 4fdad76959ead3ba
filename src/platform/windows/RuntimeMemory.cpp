// GCC's C++ library takes 73 KB when it is loaded, for exceptions that are thrown when memory has run out, and has a
// function of its own, for whoever looks for leaks, that gives them back. This library has its own copy of that library
// in it, so without this each unloading would leave them behind.

namespace __gnu_cxx { // NOLINT(bugprone-reserved-identifier): GCC's, declared in none of its headers
void __freeres() noexcept;
}

namespace {

class RuntimeMemory {
public:
    ~RuntimeMemory() { __gnu_cxx::__freeres(); }
};

const RuntimeMemory runtimeMemory; // goes when this library is unloaded

} // namespace
