// Stands in for the services: takes messages by HTTP on the loopback interface. Commands it answers with documents of
// examples/messages, requests to update objects by itself.
//   stand_in_service FOLDER [PORT]
// Without a port, or with 0, it takes a free one. It prints its URL.

#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

#include <httplib.h>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/updateobject/DXUpdateObjectRequestHelper.h>
#include <dxmd/updateobject/DXUpdateObjectResponseHelper.h>

namespace {

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("no file " + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Each task is answered by one of its own. The only object that may be removed is [Sales].[Old region].
std::string answerToUpdate(TRNIDOM_Element& message) {
  DXUpdateObjectRequestHelper request(message);
  DXUpdateObjectResponseHelper response;
  for (DXUpdateRequestTaskHelper* task : request.GetTasks()) {
    DXUpdateResponseTaskHelper* answer = response.AddTask(task->GetTask());
    DXUpdateRequestTaskHelper::ParamValue* object = nullptr;
    if (task->GetTask() == DXUpdateRequestTaskHelper::kTaskRemoveObject &&
        task->GetParameter(DXUpdateRequestTaskHelper::kParamObjectID, object) &&
        object->value == "[Sales].[Old region]") {
      answer->AddParameter(DXUpdateResponseTaskHelper::kParamObject, object->value);
    } else {
      answer->SetStatus(DXUpdateResponseTaskHelper::kStatusFailure);
      answer->SetError("DX-17", "The object is in use.");
    }
  }
  TRNIDOM_Element element;
  response.Make(element);
  return TRNIDOM_Writer::toString(element);
}

void answer(const httplib::Request& request, httplib::Response& response, const std::string& folder) {
  const TRNIDOM_Document document = TRNIDOM_Parser::parseString(request.body);
  TRNIDOM_Element message = document.getDocumentElement();
  std::string body;
  if (message.getTagName() == "updateObjectRequest") {
    body = answerToUpdate(message);
  } else if (!TRNIDOM_Helper::findChildElement(message, "validate").isNull()) {
    body = contentOf(folder + "/queryframework/validateReply.xml");
  } else if (request.body.find("Orders") != std::string::npos) {  // a data source that it does not reach
    response.status = 500;
    body = contentOf(folder + "/queryservice/dataSourceFault.xml");
  } else if (!TRNIDOM_Helper::findChildElement(message, "execute").isNull()) {
    body = contentOf(folder + "/queryframework/response.xml");
  } else {
    throw std::runtime_error("no message that this service knows");
  }
  response.set_content(body, "text/xml; charset=utf-8");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 && argc != 3) {
    std::cerr << "usage: stand_in_service FOLDER [PORT]\n";
    return 2;
  }
  try {
    const std::string folder = argv[1];
    int port = argc == 3 ? std::stoi(argv[2]) : 0;

    httplib::Server server;
    server.Post("/", [&](const httplib::Request& request, httplib::Response& response) {
      try {
        answer(request, response, folder);
      } catch (const std::exception& error) {
        response.status = 400;
        response.set_content(error.what(), "text/plain; charset=utf-8");
      }
    });
    if (port == 0)
      port = server.bind_to_any_port("127.0.0.1");
    else if (!server.bind_to_port("127.0.0.1", port))
      port = -1;
    if (port < 0) throw std::runtime_error("the port is taken");

    std::cout << "http://127.0.0.1:" << port << std::endl;
    return server.listen_after_bind() ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << "stand_in_service: " << error.what() << "\n";
    return 1;
  }
}
