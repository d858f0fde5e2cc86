// Sends messages to services and says what came back. With the stand-in service running:
//   travel http://127.0.0.1:8080

#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include <httplib.h>

#include <trn/I18NLocale.h>
#include <trn/TRNAssertError.h>
#include <trn/TRNSeverity.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/core/DXNamespaces.h>
#include <dxmd/queryframework/QFExecuteCommandHelper.h>
#include <dxmd/queryframework/QFResponseDomHelper.h>
#include <dxmd/queryframework/QFValidateCommandHelper.h>
#include <dxmd/queryservice/QsApiConnectHelper.h>
#include <dxmd/queryservice/QsDataSourceFaultHelper.h>
#include <dxmd/updateobject/DXUpdateObjectRequestHelper.h>
#include <dxmd/updateobject/DXUpdateObjectResponseHelper.h>

namespace {

// A query of the package, as it is sent.
std::string makeQuery(const I18NString& package) {
  QsApiConnectHelper connection;
  connection.SetPassport("101:5f3c");
  connection.SetModelPath(package);
  connection.SetRunLocale(I18NLocale("en"));
  TRNIDOM_Element connectionElement;
  connection.Make(connectionElement);

  QFExecuteCommandHelper command(package + "/model[@name='model']", nullptr);
  QFQueryHelper* query = command.AddQuery("Revenue");
  query->AddDataItem("Region", "[Sales].[Region].[Name]");
  query->AddDataItem("Revenue", "[Sales].[Fact].[Revenue]");
  command.SetConnection(connectionElement);

  TRNIDOM_Element message;
  command.Make(message);
  return TRNIDOM_Writer::toString(message);  // in one line
}

std::string makeValidation(const std::string& expression) {
  TRNIDOM_Document content =
      TRNIDOM_Parser::parseString("<request><content><expression>" + expression + "</expression></content></request>");
  TRNIDOM_Element message = content.getDocumentElement();
  QFValidateCommandHelper command;
  command.Make(message);
  return TRNIDOM_Writer::toString(message);
}

std::string makeRemoval(const std::vector<I18NString>& objectIDs) {
  DXUpdateObjectRequestHelper request;
  for (const I18NString& objectID : objectIDs)
    request.AddTask(DXUpdateRequestTaskHelper::kTaskRemoveObject)
        ->AddParameter(DXUpdateRequestTaskHelper::kParamObjectID, objectID, "");
  TRNIDOM_Element message;
  request.Make(message);
  return TRNIDOM_Writer::toString(message);
}

// Sends a message and parses what comes back. A fault may come with status 500, and is read like any other document.
TRNIDOM_Document ask(httplib::Client& service, const std::string& message) {
  const httplib::Result answer = service.Post("/", message, "text/xml; charset=utf-8");
  if (!answer) throw std::runtime_error("no answer: " + httplib::to_string(answer.error()));
  if (answer->status != 200 && answer->status != 500)
    throw std::runtime_error("status " + std::to_string(answer->status) + ": " + answer->body);
  return TRNIDOM_Parser::parseString(answer->body);
}

// A fault comes in place of the answer: it has a code or a text, whatever was asked.
bool isFault(TRNIDOM_Element& root) {
  QsDataSourceFaultHelper fault;
  fault.Take(root);
  if (fault.GetFaultCode().empty() && fault.GetFaultString().empty()) return false;
  std::cout << "fault " << fault.GetFaultCode() << ": " << fault.GetFaultString() << "\n";
  return true;
}

// An error reply is a reply with messages of which the last word is fatal or an error.
bool isErrorReply(const TRNIDOM_Element& root) {
  TRNSeverity severity = kSeverityNone;
  I18NString messages;
  QFValidateCommandHelper().CheckReponse(root, severity, messages);
  if (severity > kSeverityError) return false;
  std::cout << "error reply: " << messages;  // which ends with a line feed
  return true;
}

// What is neither is the result.
void printRows(TRNIDOM_Element& root) {
  QFResponseDomHelper reply;
  reply.Take(root);
  for (auto row = reply.GetFirstResultSetRow(); !row.isNull(); row = reply.GetNextResultSetRow(row)) {
    std::vector<I18NString> values;  // getters append
    reply.GetResultSetRowValues(row, values);
    std::cout << "row:";
    for (const I18NString& value : values) std::cout << " [" << value << "]";
    std::cout << "\n";
  }
}

void tellReply(const TRNIDOM_Document& document) {
  TRNIDOM_Element root = document.getDocumentElement();
  if (!isFault(root) && !isErrorReply(root)) printRows(root);
}

// An update response has a status and an error for each task, and is no error reply as a whole.
void tellUpdate(const TRNIDOM_Document& document) {
  TRNIDOM_Element root = document.getDocumentElement();
  if (isFault(root)) return;
  DXUpdateObjectResponseHelper response(root);
  for (DXUpdateResponseTaskHelper* task : response.GetTasks()) {
    std::cout << DXUpdateRequestTaskHelper::ToString(task->GetTask()) << ": " << ToString(task->GetStatus());
    if (const auto* error = task->GetError()) std::cout << ", " << error->code << ": " << error->message;
    std::cout << "\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: travel URL\n";
    return 2;
  }
  try {
    DXNamespaces::SetQueryService("urn:dxmd:query-service:api:1");  // the deployment's own, once
    httplib::Client service(argv[1]);
    tellReply(ask(service, makeQuery("/content/package[@name='Sales']")));
    tellReply(ask(service, makeQuery("/content/package[@name='Orders']")));
    tellReply(ask(service, makeValidation("[Sales].[Fact].[Revenue] / 2")));
    tellUpdate(ask(service, makeRemoval({"[Sales].[Old region]", "[Sales].[Region]"})));
    return 0;
  } catch (const TRNIDOM_ParseError& error) {  // what came back is not well-formed
    std::cerr << "the answer: " << error.what() << "\n";
  } catch (const TRNAssertError& error) {  // well-formed, but not what the reader requires
    std::cerr << "the answer: " << error.what() << "\n";
  } catch (const std::exception& error) {  // nothing came back, or nothing to read
    std::cerr << error.what() << "\n";
  }
  return 1;
}
