// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

/// A child process of a test. It dies with the test, however that ends. A sanitizer's report on its
/// standard error fails the test when the holder goes.
class Processus {
  public:
    /// How long a condition may take before the test fails, in milliseconds.
    static constexpr int kDelaiMs = 60000;

    /// `commande`: the program's path and its arguments. `environnement` is added to the test's
    /// own; an empty value takes the variable out. Throws where it cannot be started.
    explicit Processus(std::vector<std::string> const& commande,
                       std::map<std::string, std::string> const& environnement = {});
    ~Processus();
    Processus(Processus const&) = delete;
    Processus& operator=(Processus const&) = delete;

    pid_t Pid() const noexcept { return pid_; }
    /// The next line of its standard output, without the line end; nothing at its end or past the
    /// delay.
    std::optional<std::string> LisLigne(int delaiMs = kDelaiMs);
    /// Sends a signal; nothing where it has ended.
    void Signale(int numero);
    /// Waits for its end: its exit code, or minus the number of the signal that ended it. Past the
    /// delay it is killed and the test fails.
    int Attends(int delaiMs = kDelaiMs);
    bool EstFini();
    /// All of its standard error so far.
    std::string Erreurs() const;

  private:
    pid_t pid_ = -1;
    int sortie_ = -1;
    int erreurs_ = -1;
    std::optional<int> code_;
    std::string tampon_;
};
