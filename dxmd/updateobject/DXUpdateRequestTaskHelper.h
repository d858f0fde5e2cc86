#ifndef DXMD_UPDATEOBJECT_DXUPDATEREQUESTTASKHELPER_H
#define DXMD_UPDATEOBJECT_DXUPDATEREQUESTTASKHELPER_H

#include <map>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>

/// One task of an update-object request: its kind and named parameters, each with one or more values.
///
/// Written: build and hand back, parameters by ascending enumerator, the values of one parameter in the order added.
/// Read: `Take` keeps the element; the first `GetParameter` parses it, but only while the task has no parameters, so
/// that a task filled with `AddParameter` never reads a received one. `Make` writes what was added, or parsed so far,
/// and not the received element: after a remapping it is the received element that is to be sent.
///
/// The cursor, `GetNextIDParameters` and `UpdateCurrentIDParameters`, works on the received element itself: it reads
/// the object IDs of one parameter after the other and writes mapped IDs back in their place.
///
/// A task is used by one thread at a time.
class DXMD_API DXUpdateRequestTaskHelper : public ActionHandlerBase {
 public:
  /// What to do to the model.
  enum ETask : int {
    kTaskUnknown = 0,
    kTaskAddProperty = 1,
    kTaskRemoveProperty = 2,
    kTaskUpdateProperty = 3,
    kTaskReorderProperty = 4,
    kTaskAddObject = 5,
    kTaskRemoveObject = 6,
  };

  /// What a value is for.
  enum EParameter : int {
    kParamUnknown = 0,
    kParamPropertyType = 1,
    kParamPropertyValue = 2,
    kParamForceUpdate = 3,
    kParamCreateIfNeeded = 4,
    kParamPropertyIndex = 5,
    kParamPropertyBeforeIndex = 6,
    kParamObjectName = 7,
    kParamObjectType = 8,
    kParamMakeNameUnique = 9,
    kParamObjectID = 10,
    kParamObjectBeforeID = 11,
    kParamBasedOn = 12,
    kParamCaption = 13,
    kParamFilterApplyType = 14,
    kParamQueryType = 15,
    kParamDefinitionType = 16,
    kParamSubType = 17,
    kParamCmDisplayPath = 18,
    kParamCmSearchPath = 19,
    kParamFunctionSetID = 20,
    kParamOverrideFuncID = 21,
    kParamOverrideQOSLevel = 22,
    kParamOverrideDescription = 23,
    kParamQuerySubjectRefs = 24,
    kParamSetOperation = 25,
    kParamDuplicates = 26,
    kParamConvergenceLevel = 27,
    kParamKey = 28,
    kParamAttributes = 29,
    kParamCanGroup = 30,
    kParamIdentifiesRow = 31,
    kParamApplyAggregate = 32,
    kParamDimensionRef = 33,
  };

  /// One value of a parameter: a plain text with an optional locale, or a whole subtree.
  struct ParamValue {
    /// A subtree. The handle is kept, the subtree is not copied.
    explicit ParamValue(const TRNIDOM_Element& subtree) : element(subtree) {}
    /// @param localeName  empty for none.
    ParamValue(const I18NString& text, const I18NString& localeName) : locale(localeName), value(text) {}

    I18NString locale;
    I18NString value;         ///< empty for a subtree
    TRNIDOM_Element element;  ///< null for a plain value
  };

  /// The text of a task kind or parameter; "unknown" for any other value.
  static const I18NString& ToString(ETask task);
  static const I18NString& ToString(EParameter parameter);

  /// The task kind or parameter of exactly that text; unknown for any other text.
  static ETask ToTask(const I18NString& text);
  static EParameter ToParameter(const I18NString& text);

  explicit DXUpdateRequestTaskHelper(ETask task);
  ~DXUpdateRequestTaskHelper() override;

  /// Appends a plain value.
  /// @param locale  empty for none.
  void AddParameter(EParameter parameter, const I18NString& value, const I18NString& locale);

  /// Appends a subtree, of any document, which is copied when the task is written. A null element counts as an empty
  /// plain value.
  void AddParameter(EParameter parameter, const TRNIDOM_Element& element);

  /// Replaces `values` by the parameter's values, which stay owned by the task, and returns true; without the
  /// parameter returns false and leaves `values` as it is.
  /// @throws TRNAssertError when a received "param" has a name that is none, or neither an attribute "value" nor an
  ///         element as its first child; what was parsed before it stays.
  bool GetParameter(EParameter parameter, std::vector<ParamValue*>& values);

  /// The same for the first value alone.
  bool GetParameter(EParameter parameter, ParamValue*& value);

  ETask GetTask() const { return m_task; }

  /// Moves the cursor to the next received "param" that carries object IDs and replaces `vIDs` by these: its "value",
  /// or the texts of the "refobj" elements below it, of which one that does not begin with text adds nothing. When
  /// there is none, empties `vIDs`, leaves the cursor where it is and returns false.
  ///
  /// The value of a property carries IDs when a "propertyType" passed before it in an "addProperty" or
  /// "updateProperty" task says so.
  /// @throws TRNAssertError as `GetParameter` does; the cursor stands on a "param" that has neither "value" nor
  /// element.
  bool GetNextIDParameters(std::vector<I18NString>& vIDs);

  /// Writes IDs over those that the cursor stands on, in the received element.
  /// @param vIDs  exactly one for a "value"; else one for each "refobj", those counted that do not begin with text,
  ///              whose own are not used.
  /// @throws TRNAssertError before the cursor was moved, where it stands on a "param" with neither "value" nor element,
  ///         and for any other number of IDs; nothing is written then.
  void UpdateCurrentIDParameters(const std::vector<I18NString>& vIDs);

  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;
  void doTake(TRNIDOM_Element& elem) override;

 private:
  // The parameter's values, parsed when they still are to be; null when there are none.
  const std::vector<ParamValue*>* findValues(EParameter parameter);
  void parseParameters();

  template <typename... Arguments>
  void addValue(EParameter parameter, const Arguments&... arguments);

  // Whether the cursor stops at the "param"; remembers the type of property that passes.
  bool ContainsIDs(const TRNIDOM_Element& param);

  TRNIDOM_Element idCrap_elmCurrIDParam;  // the cursor, spelt as an assertion's text has it
  I18NString m_currentPropertyType;
  const ETask m_task;
  TRNIDOM_Element m_taskElement;
  std::map<EParameter, dxmd::OwnedList<ParamValue>> m_parameters;
};

#endif
