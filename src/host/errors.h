// Ends of a call that failed. None of these functions returns.
//
// A failure with a defined identifier or text goes through fail(); a call that would leave its arrays goes through refuse(),
// before anything was written. On Octave they unwind the stack; MATLAB does not promise that destructors run, so nothing
// that owns memory outside the host may be alive in a function that calls them.
#pragma once

namespace quarn::host {

/// The command word that refuse() puts into its texts, for the life of the object; then again the one of the call from which the
/// host called back. The pointer must stay valid.
class CommandScope {
 public:
  explicit CommandScope(const char* word) noexcept;
  ~CommandScope();
  CommandScope(const CommandScope&) = delete;
  CommandScope& operator=(const CommandScope&) = delete;

 private:
  const char* outer;
};

/// Raises TEXT under IDENTIFIER.
[[noreturn]] void fail(const char* identifier, const char* text);

/// Raises TEXT without an identifier.
[[noreturn]] void fail(const char* text);

/// Raises "quarn COMMAND : <formatted text>". The text says what is wrong, what was expected and what was got.
[[noreturn]] [[gnu::format(printf, 1, 2)]] void refuse(const char* format, ...);

}  // namespace quarn::host
