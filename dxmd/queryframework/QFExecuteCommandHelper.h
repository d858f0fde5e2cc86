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
///
/// A command is used, with its queries and their records, by one thread at a time.
class DXMD_API QFExecuteCommandHelper : public QFCommandHelper {
 public:
  /// The values of the hint "executionOptimization".
  enum EQueryOptimization : int {
    kQueryOptimizationFirstRow = 1,    ///< "firstRow"
    kQueryOptimizationAllRows = 2,     ///< "allRows"
    kQueryOptimizationIncremental = 3  ///< "incremental"
  };

  /// What the service can report about a query; 0 is none of them.
  enum EQueryFeedback : int {
    kQueryFeedbackUnknown = 0,            ///< no kind of feedback; written as "unknown"
    kQueryFeedbackNativeCommandText = 1,  ///< "nativeCommandText": the command as the database gets it
    kQueryFeedbackVeltraCommandText = 2,  ///< "VeltraCommandText": the command in the engine's own language
    kQueryFeedbackConnections = 3,        ///< "connections": what `QFResponseDomHelper::GetResponseDataSources` reads
    kQueryFeedbackColumnList = 4,         ///< "columnList": what `QFResponseDomHelper::GetColumnList` reads
    kQueryFeedbackExecutionPlan = 5,      ///< "executionPlan"
    kQueryFeedbackTableType = 6           ///< "tableType"
  };

  /// The quality-of-service severity from which feedback is wanted; 0 is unset and writes no attribute.
  enum EQOSSeverity : int {
    kQOSSeverityUnset = 0,              ///< no "severityLevel" is written
    kQOSSeverityError = 1,              ///< "error"
    kQOSSeverityWarning = 2,            ///< "warning"
    kQOSSeverityKeyTransformation = 3,  ///< "keyTransformation"
    kQOSSeverityInformation = 4         ///< "information"
  };

  /// Hints for the whole request; any other value writes nothing.
  enum ERequestHint : int {
    kRequestHintNoDataMode = 1,             ///< "noDataMode", with "true" or "false" in "enabled"
    kRequestHintDesignMode = 2,             ///< "designMode", with "true" or "false" in "enabled"
    kRequestHintExecutionOptimization = 3,  ///< "executionOptimization", with an EQueryOptimization's text in "value"
    kRequestHintQueryProcessing = 4         ///< "queryProcessing", with any text in "value"
  };

  // Names reserved for result templates.
  static const I18NString STR_resultTemplate;  ///< "resultTemplate"; nothing writes it
  static const I18NString STR_listResult;      ///< "listResult"; nothing writes it
  static const I18NString STR_details;         ///< "details"; nothing writes it

  /// @param modelPath  the model that the queries read from.
  /// @param locale     the expression locale, or null for none. The caller keeps it alive until the last `Make` has
  ///                   returned.
  QFExecuteCommandHelper(const I18NString& modelPath, const I18NLocale* locale);
  ~QFExecuteCommandHelper() override;

  /// Appends a query and returns it for the caller to fill. It stays owned by the command.
  QFQueryHelper* AddQuery(const I18NString& name);

  /// Appends a query over the join of two queries and returns it for the caller to fill. It stays owned by the command.
  /// The arguments are those of QFJoinQueryHelper.
  QFJoinQueryHelper* AddJoinQuery(const I18NString& name, const I18NString& leftQueryRef,
                                  const I18NString& leftCardinality, const I18NString& rightQueryRef,
                                  const I18NString& rightCardinality, const I18NString& joinFilterExpression);

  /// Appends a query over two queries combined by a set operation and returns it for the caller to fill. It stays owned
  /// by the command. The arguments are those of QFModelSetQueryHelper.
  QFModelSetQueryHelper* AddModelSetQuery(const I18NString& name, std::vector<I18NString> projection,
                                          const I18NString& setOperation, const I18NString& duplicates);

  /// Sets an execute property, replacing its former value. Properties are written in order of their names.
  void AddExecuteProperty(const I18NString& name, const I18NString& value);

  /// Sets a request hint, replacing its former value. The mode hints take the text of "enabled", such as "true", the
  /// execution optimisation `ToString(EQueryOptimization)`.
  void AddRequestHint(ERequestHint hint, const I18NString& value);

  /// Appends a query feedback; duplicates are kept.
  void AddQueryFeedback(EQueryFeedback feedback);

  /// Sets the severity from which feedback is wanted, the "severityLevel" of "queryFeedback"; unset at first.
  void SetQOSSeverityLevel(EQOSSeverity level);

  /// The text that the hint "executionOptimization" takes; "unknown" for any other value.
  static const I18NString& ToString(EQueryOptimization optimization);

  /// The name of a query feedback in commands and replies; "unknown" for any value without one.
  static const I18NString& ToString(EQueryFeedback feedback);

  /// The text of "severityLevel"; "unknown" for any value without one.
  static const I18NString& ToString(EQOSSeverity severity);

  /// The severity that a nag level stands for: 0 and 1 mean error, 2 warning, 3 key transformation, all above
  /// information.
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
