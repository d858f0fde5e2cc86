#ifndef DXMD_QUERYFRAMEWORK_QFVALIDATECOMMANDHELPER_H
#define DXMD_QUERYFRAMEWORK_QFVALIDATECOMMANDHELPER_H

#include <trn/I18NString.h>
#include <trn/TRNSeverity.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryframework/QFCommandHelper.h>

/// The "validate" command, and the reader of its answer.
///
/// Written: build and hand back, in the command envelope. What is to be validated comes in through the element handed
/// to `Make`: the children of its first child are copied into "validate", and the handle then refers to the command. A
/// null element, or one without a first child, gives an empty "validate".
///
/// A helper is used by one thread at a time.
class DXMD_API QFValidateCommandHelper : public QFCommandHelper {
 public:
  /// A command with the default identifiers, without a connection.
  QFValidateCommandHelper();
  ~QFValidateCommandHelper() override;

  /// Judges the messages of a response. The name is the interface's, misspelt as it is.
  /// @param response  holds messages at any depth; may be null.
  /// @param severity  becomes `kSeverityNone`, then what the messages make of it one after the other: "fatal" and
  ///                  "information" always set it, "error" except after a fatal, "warning" except after an error. So
  ///                  the last word is not always the most severe one.
  /// @param messages  gets the text of every message appended, each followed by a line feed.
  void CheckReponse(const TRNIDOM_Element& response, TRNSeverity& severity, I18NString& messages) const;

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& element) const override;
};

#endif
