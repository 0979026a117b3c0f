#pragma once

// None of this is the library's. A host may call its own functions and classes what it likes.

/// How often the library has called one of the host's functions instead of its own.
int NamesakeCalls();

struct Range {
  Range();
  Range(int, int);
};

struct ModelData {
  ModelData();
  ModelData(const ModelData&);
  ~ModelData();
};

class StatusLine {
 public:
  explicit StatusLine(class QWidget* parent);
};
