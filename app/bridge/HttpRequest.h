#pragma once

#include <string_view>

#include <QByteArray>

/// The head of an HTTP request, read as it comes. Only what a metrics store needs: GET and HEAD
/// without a body.
class HttpRequest {
 public:
  static constexpr qsizetype kLongest = 8192;  ///< Bytes of a head.

  /// Takes the next bytes. Nothing is taken after the head or after a fault.
  void Take(std::string_view bytes);

  bool IsComplete() const { return status_ != 0; }
  /// 200 if it was understood, or the status of the error to answer with; 0 until it is complete.
  int Status() const { return status_; }
  bool IsHead() const { return isHead_; }
  const QByteArray& Path() const { return path_; }
  /// The decoded value of a parameter behind the path's question mark; null if it is missing.
  QByteArray Parameter(std::string_view name) const;

 private:
  int Read();

  QByteArray head_;
  int status_ = 0;
  bool isHead_ = false;
  QByteArray path_;
  QByteArray query_;
};

/// The head of an answer with a body of so many bytes, after which the connection is closed.
QByteArray HttpAnswerHead(int status, qsizetype size);
