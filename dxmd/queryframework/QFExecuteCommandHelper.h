#ifndef DXMD_QUERYFRAMEWORK_QFEXECUTECOMMANDHELPER_H
#define DXMD_QUERYFRAMEWORK_QFEXECUTECOMMANDHELPER_H

#include <map>
#include <memory>
#include <vector>

#include <trn/I18NLocale.h>
#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>
#include <dxmd/queryframework/QFCommandHelper.h>
#include <dxmd/queryframework/QFJoinQueryHelper.h>
#include <dxmd/queryframework/QFModelSetQueryHelper.h>
#include <dxmd/queryframework/QFQueryHelper.h>

/// The "execute" command: queries to run, the data items to return, request hints, execute properties, and the query
/// feedbacks that the service is to report back.
///
/// Written: build and hand back, in the command envelope. The queries share one result definition, named after the
/// last of them; when the first query is named "SingleCount" or "querySet", that one alone is defined.
/// The command owns its queries; pointers to them are valid as long as the command.
class DXMD_API QFExecuteCommandHelper : public QFCommandHelper {
 public:
  /// The values of the hint "executionOptimization".
  enum EQueryOptimization : int {
    kQueryOptimizationFirstRow = 1,
    kQueryOptimizationAllRows = 2,
    kQueryOptimizationIncremental = 3
  };

  /// What the service can report about a query; 0 is none of them.
  enum EQueryFeedback : int {
    kQueryFeedbackUnknown = 0,
    kQueryFeedbackNativeCommandText = 1,
    kQueryFeedbackVeltraCommandText = 2,
    kQueryFeedbackConnections = 3,
    kQueryFeedbackColumnList = 4,
    kQueryFeedbackExecutionPlan = 5,
    kQueryFeedbackTableType = 6
  };

  /// The quality-of-service severity from which feedback is wanted; 0 is unset and writes no attribute.
  enum EQOSSeverity : int {
    kQOSSeverityUnset = 0,
    kQOSSeverityError = 1,
    kQOSSeverityWarning = 2,
    kQOSSeverityKeyTransformation = 3,
    kQOSSeverityInformation = 4
  };

  /// Hints for the whole request; any other value writes nothing.
  enum ERequestHint : int {
    kRequestHintNoDataMode = 1,
    kRequestHintDesignMode = 2,
    kRequestHintExecutionOptimization = 3,
    kRequestHintQueryProcessing = 4
  };

  /// Names reserved for result templates; nothing writes them.
  static const I18NString STR_resultTemplate;
  static const I18NString STR_listResult;
  static const I18NString STR_details;

  /// @param modelPath  the model that the queries read from.
  /// @param locale     the expression locale; may be null. The caller keeps it alive until the last `Make` has
  /// returned.
  QFExecuteCommandHelper(const I18NString& modelPath, const I18NLocale* locale);
  ~QFExecuteCommandHelper() override;

  /// Each appends a query and returns it for the caller to fill.
  QFQueryHelper* AddQuery(const I18NString& name);
  QFJoinQueryHelper* AddJoinQuery(const I18NString& name, const I18NString& leftQueryRef,
                                  const I18NString& leftCardinality, const I18NString& rightQueryRef,
                                  const I18NString& rightCardinality, const I18NString& joinFilterExpression);
  QFModelSetQueryHelper* AddModelSetQuery(const I18NString& name, std::vector<I18NString> projection,
                                          const I18NString& setOperation, const I18NString& duplicates);

  /// Sets an execute property, replacing its former value. Properties are written in order of their names.
  void AddExecuteProperty(const I18NString& name, const I18NString& value);

  /// Sets a request hint, replacing its former value. The mode hints take the text of "enabled", such as "true", the
  /// execution optimisation `ToString(EQueryOptimization)`.
  void AddRequestHint(ERequestHint hint, const I18NString& value);

  /// Appends a query feedback; duplicates are kept.
  void AddQueryFeedback(EQueryFeedback feedback);
  void SetQOSSeverityLevel(EQOSSeverity level);

  /// The XML texts; "unknown" for any value without one.
  static const I18NString& ToString(EQueryOptimization optimization);
  static const I18NString& ToString(EQueryFeedback feedback);
  static const I18NString& ToString(EQOSSeverity severity);

  /// 0 and 1 mean error, 2 warning, 3 key transformation, everything above information.
  static EQOSSeverity ConvertNagLevel2SeverityLevel(unsigned long nagLevel);

 protected:
  /// @throws TRNAssertError when the command holds no query; nothing is written then.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& parent) const override;

 private:
  template <typename Query>
  Query* addQuery(std::unique_ptr<Query> query);
  void makeResultDefinitions(TRNIDOM_Element& querySet) const;
  void makeRequestHints(TRNIDOM_Element& querySet) const;
  void makeQueryFeedbacks(TRNIDOM_Element& execute) const;

  const I18NLocale* m_locale;
  dxmd::OwnedList<QFQueryHelper> m_queries;
  std::map<ERequestHint, I18NString> m_requestHints;
  std::vector<EQueryFeedback> m_queryFeedbacks;
  std::map<I18NString, I18NString> m_executeProperties;
  EQOSSeverity m_severityLevel = kQOSSeverityUnset;
};

#endif
