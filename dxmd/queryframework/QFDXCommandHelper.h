#ifndef DXMD_QUERYFRAMEWORK_QFDXCOMMANDHELPER_H
#define DXMD_QUERYFRAMEWORK_QFDXCOMMANDHELPER_H

#include <vector>

#include <trn/I18NLocale.h>
#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryframework/QFCommandHelper.h>
#include <dxmd/queryframework/QFExecuteCommandHelper.h>

/// Base of the modelling commands, which travel in a "dxCommand" element inside the envelope.
///
/// "dxCommand" carries the query locale, when one was set, and holds the model path ("source"/"model"), the command
/// proper, and the query feedbacks that the caller wants, when there are any.
///
/// A helper is used by one thread at a time.
class DXMD_API QFDXCommandHelper : public QFCommandHelper {
 public:
  /// @param modelPath  the model that the command works on: the text of "model" in "source".
  explicit QFDXCommandHelper(const I18NString& modelPath);
  ~QFDXCommandHelper() override;

  /// Appends a query feedback that the service is to report back; duplicates are kept.
  void AddQueryFeedback(QFExecuteCommandHelper::EQueryFeedback feedback);

  /// Sets the query locale; null clears it. The caller keeps it alive until the last `Make` has returned.
  void SetQueryLocale(const I18NLocale* locale);

  /// Wraps the command proper in "dxCommand" and that in the envelope.
  void Incorporate(TRNIDOM_Document& doc, TRNIDOM_Element& out, TRNIDOM_Element& inner) const override;

 private:
  void makeQueryFeedbacks(TRNIDOM_Document& doc, TRNIDOM_Element& dxCommand) const;

  const I18NLocale* m_queryLocale = nullptr;
  std::vector<QFExecuteCommandHelper::EQueryFeedback> m_queryFeedbacks;
};

#endif
