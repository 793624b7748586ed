// A variable of the environment, as a test sets it and as it was before.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace tests {

class EnvironmentVariable {
  public:
    // Null takes it out of the environment.
    EnvironmentVariable(const char* name, const char* value) : name_(name) {
        if (const char* const before = std::getenv(name))
            before_ = before;
        set(value);
    }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
    ~EnvironmentVariable() { set(before_ ? before_->c_str() : nullptr); }

  private:
    void set(const char* value) const {
        if (value)
            ::setenv(name_.c_str(), value, 1);
        else
            ::unsetenv(name_.c_str());
    }

    std::string name_;
    std::optional<std::string> before_;
};

} // namespace tests
