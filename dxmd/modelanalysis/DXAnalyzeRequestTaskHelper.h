#ifndef DXMD_MODELANALYSIS_DXANALYZEREQUESTTASKHELPER_H
#define DXMD_MODELANALYSIS_DXANALYZEREQUESTTASKHELPER_H

#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>

/// One task of a model analysis request: the checks to run, over the whole model or over the objects listed.
///
/// A task is used by one thread at a time.
class DXMD_API DXAnalyzeRequestTaskHelper {
 public:
  /// What to do. The reserved kinds have no text: they are written as "unknown" and cannot be read.
  enum ETask : int {
    kTaskUnknown = 0,           ///< no task; written as "unknown", refused when read
    kTaskReserved1 = 1,         ///< written as "unknown"
    kTaskReserved2 = 2,         ///< written as "unknown"
    kTaskDoSpecifiedChecks = 3  ///< "doSpecifiedChecks"
  };

  /// What to look for.
  enum ECheck : int {
    kCheckUnknown = 0,                  ///< no check; written as "unknown", refused when read
    kCheckUseOfCardinalityInFacts = 1,  ///< "useOfCardinalityInFacts"
    kCheckAmbiguousCardinality = 2,     ///< "ambiguousCardinality"
    kCheckAmbiguousRelationships = 3,   ///< "ambiguousRelationships"
    kCheckCircularDependency = 4,       ///< "circularDependency"
    kCheckKeyIndexVsRelationships = 5,  ///< "keyIndexVsRelationships"
    kCheckJoinAtDifferentLevels = 6,    ///< "joinAtDifferentLevels"; not among those that may be asked for
    kCheckMinimizedSQLconflict = 7,     ///< "minimizedSQLconflict"
    kCheckEmbeddedCalculation = 8,      ///< "embeddedCalculation"
    kCheckCachingConflict = 9           ///< "cachingConflict"
  };

  /// A name reserved for a check; none goes by it.
  static const I18NString STR_aggregationConflict;

  /// The text of a task kind; "unknown" for any other value.
  static const I18NString& ToString(ETask task);

  /// The text of a check; "unknown" for any other value.
  static const I18NString& ToString(ECheck check);

  /// The task kind of exactly that text; unknown for any other text.
  static ETask ToTask(const I18NString& text);

  /// The check of exactly that text; unknown for any other text.
  static ECheck ToCheck(const I18NString& text);

  /// Appends the checks that may be asked for, in ascending order: all but `kCheckJoinAtDifferentLevels`.
  static void GetSupportedChecks(std::vector<ECheck>& checks);

  /// A task without checks and objects, over the whole model, whose kind does not change.
  explicit DXAnalyzeRequestTaskHelper(ETask task);

  DXAnalyzeRequestTaskHelper(const DXAnalyzeRequestTaskHelper&) = delete;
  DXAnalyzeRequestTaskHelper& operator=(const DXAnalyzeRequestTaskHelper&) = delete;

  /// Appends a check; one added twice stays twice.
  void AddCheck(ECheck check);

  /// Appends the ID of an object to check.
  void AddObject(const I18NString& id);

  /// The kind of task: "name".
  ETask GetTask() const { return m_task; }

  /// The checks in the order added or read; valid as long as the task, and changing with it.
  const std::vector<ECheck>& GetChecks() const { return m_checks; }

  /// The IDs of the objects in the order added or read; valid as long as the task, and changing with it.
  const std::vector<I18NString>& GetObjects() const { return m_objects; }

  /// Hands back a new "task" with its objects and checks.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const;

  /// Adds every "check" and "object" of any depth.
  /// @throws TRNAssertError for a check whose name is none and for an object without an ID; what was read before it
  ///         stays.
  void doTake(TRNIDOM_Element& elem);

 private:
  ETask m_task;
  std::vector<ECheck> m_checks;
  std::vector<I18NString> m_objects;
};

#endif
