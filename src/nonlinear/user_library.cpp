#include "nonlinear/user_library.h"

#include <dlfcn.h>
#include <elf.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "host/errors.h"

namespace quarn {

namespace {

/// Which file it was, and what was in it.
struct Content {
  struct stat status {};
  std::uint64_t sum = 0;
};

struct Library {
  std::string path;
  Content content;
  int copy;  ///< descriptor of what is loaded, open as long as it is: its number is the name under which the loader knows it; -1: the file
  void* loaded;
  const quarn_law* law;
};

std::vector<Library> libraries;

bool sameFile(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_size == b.st_size && a.st_mtim.tv_sec == b.st_mtim.tv_sec &&
         a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

/// Whether every part that is to be loaded is in the file: a library that was cut short ends the process when it is used.
bool wholeLibrary(std::FILE* file, long long size) {
  Elf64_Ehdr head;
  if (std::fread(&head, sizeof head, 1, file) != 1 || std::memcmp(head.e_ident, ELFMAG, SELFMAG) != 0) return false;
  if (head.e_ident[EI_CLASS] != ELFCLASS64 || head.e_type != ET_DYN || head.e_phentsize != sizeof(Elf64_Phdr)) return false;
  if (head.e_phoff > static_cast<unsigned long long>(size) || std::fseek(file, static_cast<long>(head.e_phoff), SEEK_SET) != 0)
    return false;
  for (int k = 0; k < head.e_phnum; ++k) {
    Elf64_Phdr part;
    if (std::fread(&part, sizeof part, 1, file) != 1) return false;
    if (part.p_type != PT_LOAD && part.p_type != PT_DYNAMIC) continue;
    const auto bytes = static_cast<unsigned long long>(size);
    if (part.p_offset > bytes || part.p_filesz > bytes - part.p_offset) return false;
  }
  return head.e_phnum > 0;
}

/// FNV-1a of all bytes.
std::uint64_t sumOf(std::FILE* file) {
  std::rewind(file);
  std::uint64_t sum = 0xcbf29ce484222325U;
  unsigned char bytes[4096];
  for (std::size_t n = std::fread(bytes, 1, sizeof bytes, file); n > 0; n = std::fread(bytes, 1, sizeof bytes, file)) {
    for (std::size_t k = 0; k < n; ++k) sum = (sum ^ bytes[k]) * 0x100000001b3U;
  }
  return sum;
}

enum class Found { whole, none, noLibrary };

Found look(const char* path, Content* content) {
  if (stat(path, &content->status) != 0) return Found::none;
  if (!S_ISREG(content->status.st_mode)) return Found::noLibrary;
  std::FILE* file = std::fopen(path, "rb");
  if (!file) return Found::none;
  const bool whole = wholeLibrary(file, content->status.st_size);
  content->sum = whole ? sumOf(file) : 0;
  static_cast<void>(std::fclose(file));
  return whole ? Found::whole : Found::noLibrary;
}

/// The law of a library that has been loaded: null, and the reason in why, where it has none that can be used.
const quarn_law* entryOf(void* loaded, char* why, std::size_t size) {
  const auto* law = static_cast<const quarn_law*>(dlsym(loaded, "quarn_law_entry"));
  if (!law || std::memcmp(law->magic, "quarnlaw", sizeof law->magic) != 0) {
    std::snprintf(why, size, "it has no law: a line QUARN_LAW (function, rows, parameters, states) is expected in its source");
  } else if (law->version != QUARN_LAW_VERSION || law->size != static_cast<int>(sizeof *law)) {
    std::snprintf(why, size, "its law is of version %d, this module takes version %d: compile it with the quarn_law.h of this module",
                  law->version, QUARN_LAW_VERSION);
  } else if ((law->rows < 1 && law->rows != QUARN_ANY) || (law->parameters < 0 && law->parameters != QUARN_ANY) || law->states < 0) {
    std::snprintf(why, size, "its law takes %d rows, %d parameters and %d states, which no law can", law->rows, law->parameters,
                  law->states);
  } else if (!law->evaluate) {
    std::snprintf(why, size, "its law has no function");
  } else {
    return law;
  }
  return nullptr;
}

/// A copy of the file in memory, so that what is written into the file later cannot reach code that is loaded; -1 where none can be made,
/// or it is not what was looked at.
int copyInMemory(const char* path, const Content& content) {
  std::FILE* file = std::fopen(path, "rb");
  if (!file) return -1;
  const int copy = memfd_create("quarn_law", MFD_CLOEXEC);
  char bytes[4096];
  bool whole = copy >= 0;
  for (std::size_t n = std::fread(bytes, 1, sizeof bytes, file); n > 0 && whole; n = std::fread(bytes, 1, sizeof bytes, file)) {
    whole = write(copy, bytes, n) == static_cast<ssize_t>(n);
  }
  whole = whole && sumOf(file) == content.sum;
  static_cast<void>(std::fclose(file));
  if (!whole && copy >= 0) close(copy);
  return whole ? copy : -1;
}

/// The library, as a copy where that can be loaded.
void* open(const char* path, const Content& content, int* copy) {
  *copy = copyInMemory(path, content);
  if (*copy >= 0) {
    char name[40];
    std::snprintf(name, sizeof name, "/proc/self/fd/%d", *copy);
    if (void* loaded = dlopen(name, RTLD_NOW | RTLD_LOCAL)) return loaded;
    close(*copy);
    *copy = -1;
  }
  return dlopen(path, RTLD_NOW | RTLD_LOCAL);
}

void release(void* loaded, int copy) noexcept {
  dlclose(loaded);
  if (copy >= 0) close(copy);
}

const quarn_law* load(const char* path) {
  char why[400] = "";
  Content content;
  const Found found = look(path, &content);
  if (found == Found::none) host::refuse("there is no library of a law that can be read at %s: %s", path, std::strerror(errno));
  if (found == Found::noLibrary) host::refuse("%s is no shared library, or not a whole one", path);
  int copy = -1;
  void* loaded = open(path, content, &copy);
  if (!loaded) {
    std::snprintf(why, sizeof why, "%s", dlerror());
    host::refuse("the law cannot be loaded: %s", why);
  }
  const quarn_law* law = entryOf(loaded, why, sizeof why);
  if (!law) {
    release(loaded, copy);
    host::refuse("%s cannot be used: %s", path, why);
  }
  try {
    libraries.push_back({path, content, copy, loaded, law});
  } catch (...) {
    release(loaded, copy);
    throw;
  }
  return law;
}

}  // namespace

const quarn_law* userLibrary(const char* path) {
  for (Library& l : libraries) {
    if (l.path != path) continue;
    Content now;
    if (stat(path, &now.status) != 0 || sameFile(now.status, l.content.status)) return l.law;
    if (look(path, &now) != Found::whole || now.sum != l.content.sum) {
      host::refuse("%s was changed after it had been loaded: give a changed law another name, or clear quarn before", path);
    }
    l.content = now;
    return l.law;
  }
  return load(path);
}

void closeUserLibraries() noexcept {
  for (const Library& l : libraries) release(l.loaded, l.copy);
  libraries.clear();
}

}  // namespace quarn
