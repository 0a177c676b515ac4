// Calls as record_all.m writes them, one after the other. Arrays are made in the stand-in host's workspace.
#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "standin.h"

struct Record {
  std::string name;
  std::vector<mxArray*> before;  ///< the arguments, command word first
  std::vector<mxArray*> after;   ///< the arguments after the call, then its results
  int results = 0;
};

class Records {
 public:
  /// Ends the program with a message when the file cannot be read.
  explicit Records(const std::string& path);
  /// False at the end of the file. Ends the program when the file breaks off or makes no sense.
  bool next(Record& record);

 private:
  mxArray* value();
  mxArray* valueOfKind(const std::string& kind);
  std::string word();
  std::size_t number();
  std::vector<mwSize> extents();
  [[noreturn]] void bad(const std::string& what) const;

  std::string path;
  std::ifstream file;
};

/// How far two arrays are from each other.
struct Difference {
  std::size_t numbers = 0;  ///< doubles and integers that were compared
  std::size_t bits = 0;     ///< those whose bits differ
  double worst = 0.0;       ///< largest difference of two doubles, relative to the largest magnitude in their array
  bool shape = false;       ///< classes, extents, fields or texts differ: numbers were not compared
  void add(const Difference& other);
};
Difference difference(const mxArray* a, const mxArray* b);
