#ifndef DXMD_QUERYENGINE_VQEEXPANDPARAMETERHELPER_H
#define DXMD_QUERYENGINE_VQEEXPANDPARAMETERHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryframework/QFDXCommandHelper.h>

/// The command that expands a parameterised expression, and the reader of its answer.
///
/// Written: build and hand back, "expand" in the modelling command's envelope.
/// Read: `Take` keeps a handle to the response, which the getter reads.
/// A helper is used by one thread at a time.
class DXMD_API VqeExpandParameterHelper : public QFDXCommandHelper {
 public:
  /// @param modelPath  the model that the expression is about: the text of "model" in "source".
  explicit VqeExpandParameterHelper(const I18NString& modelPath);
  ~VqeExpandParameterHelper() override;

  /// Sets the expression to expand: the text of "expression", written also when empty.
  void SetParameterisedValue(const I18NString& value);

  /// The expanded text of the response last taken; empty when none was taken. Only the first text node counts.
  /// @throws TRNAssertError when the response does not hold exactly one "expansionResult" that begins with text.
  I18NString GetExpandedQuery() const;

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;
  void doTake(TRNIDOM_Element& elem) override;

 private:
  I18NString m_parameterisedValue;
  TRNIDOM_Element m_response;
};

#endif
