#pragma once

// Sets (or, with null, removes) an environment variable for one scope.

#include <cstdlib>
#include <string>

class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const char* value) : m_name(name) {
        if (const char* old = std::getenv(name))
            m_old = old, m_hadValue = true;
        value != nullptr ? setenv(name, value, 1) : unsetenv(name);
    }
    ~EnvironmentVariable() { m_hadValue ? setenv(m_name, m_old.c_str(), 1) : unsetenv(m_name); }

private:
    const char* m_name;
    std::string m_old;
    bool m_hadValue = false;
};
