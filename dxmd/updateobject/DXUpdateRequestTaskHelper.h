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
    kTaskUnknown = 0,          ///< no task; written as "unknown", refused when read
    kTaskAddProperty = 1,      ///< "addProperty"
    kTaskRemoveProperty = 2,   ///< "removeProperty"
    kTaskUpdateProperty = 3,   ///< "updateProperty"
    kTaskReorderProperty = 4,  ///< "reorderProperty"
    kTaskAddObject = 5,        ///< "addObject"
    kTaskRemoveObject = 6      ///< "removeObject"
  };

  /// What a value is for.
  enum EParameter : int {
    kParamUnknown = 0,               ///< no parameter; written as "unknown", refused when read
    kParamPropertyType = 1,          ///< "propertyType"; tells whether the "propertyValue" behind it carries object IDs
    kParamPropertyValue = 2,         ///< "propertyValue"; carries object IDs when a "propertyType" says so
    kParamForceUpdate = 3,           ///< "forceUpdate"
    kParamCreateIfNeeded = 4,        ///< "createIfNeeded"
    kParamPropertyIndex = 5,         ///< "propertyIndex"
    kParamPropertyBeforeIndex = 6,   ///< "propertyBeforeIndex"
    kParamObjectName = 7,            ///< "objectName"
    kParamObjectType = 8,            ///< "objectType"
    kParamMakeNameUnique = 9,        ///< "makeNameUnique"
    kParamObjectID = 10,             ///< "objectID"; carries object IDs
    kParamObjectBeforeID = 11,       ///< "objectBeforeID"; carries object IDs
    kParamBasedOn = 12,              ///< "basedOn"; carries object IDs
    kParamCaption = 13,              ///< "caption"
    kParamFilterApplyType = 14,      ///< "filterApplyType"
    kParamQueryType = 15,            ///< "queryType"
    kParamDefinitionType = 16,       ///< "definitionType"
    kParamSubType = 17,              ///< "subType"
    kParamCmDisplayPath = 18,        ///< "cmDisplayPath"
    kParamCmSearchPath = 19,         ///< "cmSearchPath"
    kParamFunctionSetID = 20,        ///< "functionSetID"
    kParamOverrideFuncID = 21,       ///< "overrideFuncID"
    kParamOverrideQOSLevel = 22,     ///< "overrideQOSLevel"
    kParamOverrideDescription = 23,  ///< "overrideDescription"
    kParamQuerySubjectRefs = 24,     ///< "querySubjectRefs"
    kParamSetOperation = 25,         ///< "setOperation"
    kParamDuplicates = 26,           ///< "duplicates"
    kParamConvergenceLevel = 27,     ///< "convergenceLevel"
    kParamKey = 28,                  ///< "key"; carries object IDs
    kParamAttributes = 29,           ///< "attributes"; carries object IDs
    kParamCanGroup = 30,             ///< "canGroup"
    kParamIdentifiesRow = 31,        ///< "identifiesRow"
    kParamApplyAggregate = 32,       ///< "applyAggregate"
    kParamDimensionRef = 33          ///< "dimensionRef"; carries object IDs
  };

  /// One value of a parameter: a plain text with an optional locale, or a whole subtree.
  struct ParamValue {
    /// A subtree. The handle is kept, the subtree is not copied.
    explicit ParamValue(const TRNIDOM_Element& subtree) : element(subtree) {}

    /// A plain value.
    /// @param text        "value"
    /// @param localeName  "locale"; empty for none.
    ParamValue(const I18NString& text, const I18NString& localeName) : locale(localeName), value(text) {}

    I18NString locale;        ///< "locale"; empty for none, and always for a subtree read
    I18NString value;         ///< "value"; empty for a subtree
    TRNIDOM_Element element;  ///< the child of "param" that stands for the value; null for a plain value
  };

  /// The text of a task kind; "unknown" for any other value.
  static const I18NString& ToString(ETask task);

  /// The text of a parameter; "unknown" for any other value.
  static const I18NString& ToString(EParameter parameter);

  /// The task kind of exactly that text; unknown for any other text.
  static ETask ToTask(const I18NString& text);

  /// The parameter of exactly that text; unknown for any other text.
  static EParameter ToParameter(const I18NString& text);

  /// A task without parameters, whose kind does not change.
  explicit DXUpdateRequestTaskHelper(ETask task);
  ~DXUpdateRequestTaskHelper() override;

  /// Appends a plain value.
  /// @param parameter  what the value is for: "name".
  /// @param value      "value", written also when empty.
  /// @param locale     "locale"; empty for none.
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

  /// The kind of task: "name".
  ETask GetTask() const { return m_task; }

  /// Moves the cursor to the next received "param" that carries object IDs and replaces `vIDs` by these: its "value",
  /// or the texts of the "refobj" elements below it, of which one that does not begin with text adds nothing. When
  /// there is none, empties `vIDs`, leaves the cursor where it is and returns false.
  ///
  /// The value of a property carries IDs when a "propertyType" passed before it in an "addProperty" or
  /// "updateProperty" task says so.
  /// @throws TRNAssertError as `GetParameter` does; the cursor stands on a "param" that has neither "value" nor
  ///         element.
  bool GetNextIDParameters(std::vector<I18NString>& vIDs);

  /// Writes IDs over those that the cursor stands on, in the received element.
  /// @param vIDs  exactly one for a "value"; else one for each "refobj", those counted that do not begin with text,
  ///              whose own are not used.
  /// @throws TRNAssertError before the cursor was moved, where it stands on a "param" with neither "value" nor element,
  ///         and for any other number of IDs; nothing is written then.
  void UpdateCurrentIDParameters(const std::vector<I18NString>& vIDs);

  /// Hands back a new "task". Public for the request that owns the task.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// Keeps the "task" for the first `GetParameter` and the cursor; a null one has no parameters.
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
