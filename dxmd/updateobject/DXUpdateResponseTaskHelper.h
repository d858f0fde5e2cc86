#ifndef DXMD_UPDATEOBJECT_DXUPDATERESPONSETASKHELPER_H
#define DXMD_UPDATEOBJECT_DXUPDATERESPONSETASKHELPER_H

#include <map>
#include <memory>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>
#include <dxmd/updateobject/DXUpdateRequestTaskHelper.h>

class DXActionFeedbackHelper;
class DXUpdateObjectResponseHelper;

/// What became of one task of an update-object request: its status, the properties or objects it touched, an optional
/// error and optional feedback.
///
/// Written: build and hand back, parameters by ascending enumerator, the values of one parameter in the order added,
/// then the error, then the feedback. Read: `Take` keeps the element and its feedback; the first `GetParameter` parses
/// parameters, but only while the task has none, and `GetError` the error, but only while the task has none. `Make`
/// writes what was added, or parsed so far, and not the received element.
///
/// A task is used by one thread at a time.
class DXMD_API DXUpdateResponseTaskHelper : public ActionHandlerBase {
 public:
  /// How the task ended, with the text of "status".
  enum EStatus : int {
    kStatusUnknown = 0,  ///< written as "unknown", and read from any other text
    kStatusSuccess = 1,  ///< "success"
    kStatusFailure = 2   ///< "failure"
  };

  /// What a value names.
  enum EParameter : int {
    kParamUnknown = 0,   ///< no parameter; written as "unknown", refused when read
    kParamProperty = 1,  ///< "property": a property that was touched
    kParamObject = 2     ///< "object": an object that was touched
  };

  /// Why the task failed.
  struct ErrorRecord {
    I18NString code;     ///< "code"; empty without the attribute
    I18NString message;  ///< the text that "error" begins with
  };

  /// A task without parameters, error and feedback.
  /// @param task    the kind of task, which does not change.
  /// @param status  how it ended.
  DXUpdateResponseTaskHelper(DXUpdateRequestTaskHelper::ETask task, EStatus status);
  ~DXUpdateResponseTaskHelper() override;

  /// The kind of task: "name".
  DXUpdateRequestTaskHelper::ETask GetTask() const { return m_task; }

  /// How the task ended: "status".
  EStatus GetStatus() const { return m_status; }

  /// Replaces the status.
  void SetStatus(EStatus status) { m_status = status; }

  /// Appends a value, written as a "param" with "name" and "value".
  void AddParameter(EParameter parameter, const I18NString& value);

  /// Replaces `values` by the parameter's values and returns true; without the parameter returns false and leaves
  /// `values` as it is.
  /// @throws TRNAssertError when a received "param" has a name that is none; what was parsed before it stays.
  bool GetParameter(EParameter parameter, std::vector<I18NString>& values);

  /// Sets the error, or overwrites the one there is.
  void SetError(const I18NString& code, const I18NString& message);

  /// The error, set or received, owned by the task and valid as long as it; null when there is none.
  ErrorRecord* GetError();

  /// Keeps a copy of the messages added to the feedback. A feedback without any leaves the one kept before.
  void SetFeedback(const DXActionFeedbackHelper& feedback);

  /// The "feedback" element, for a DXActionFeedbackHelper to take and render; null when there is none.
  TRNIDOM_Element GetFeedback() const { return m_feedback; }

  /// Hands back a new "task". Public for the response that owns the task.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// Keeps the "task" and the first "feedback" below it; status and kind stay those of the constructor.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  friend class DXUpdateObjectResponseHelper;

  // What `doTake` does, with the first "feedback" below the task, or null.
  void take(const TRNIDOM_Element& elem, const TRNIDOM_Node& feedback);
  void parseParameters();

  const DXUpdateRequestTaskHelper::ETask m_task;
  EStatus m_status;
  TRNIDOM_Element m_taskElement;
  std::map<EParameter, std::vector<I18NString>> m_parameters;
  std::unique_ptr<ErrorRecord> m_error;
  TRNIDOM_Element m_feedback;
};

/// The text of a status; "unknown" for any other value.
/// @relates DXUpdateResponseTaskHelper
DXMD_API const I18NString& ToString(DXUpdateResponseTaskHelper::EStatus status);

/// The text of a parameter; "unknown" for any other value.
/// @relates DXUpdateResponseTaskHelper
DXMD_API const I18NString& ToString(DXUpdateResponseTaskHelper::EParameter parameter);

/// The status of exactly that text; unknown for any other text.
/// @relates DXUpdateResponseTaskHelper
DXMD_API DXUpdateResponseTaskHelper::EStatus ToStatus(const I18NString& text);

/// The parameter of exactly that text; unknown for any other text.
/// @relates DXUpdateResponseTaskHelper
DXMD_API DXUpdateResponseTaskHelper::EParameter ToParameter(const I18NString& text);

#endif
