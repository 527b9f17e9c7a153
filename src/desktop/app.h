#pragma once

#include <memory>

#include <wx/app.h>

namespace tarvex {

// The process: the services of the machine, one program and its windows.
class App final : public wxApp {
  public:
    App();
    ~App() override;

    bool OnInit() override;
    int OnRun() override;

  private:
    struct Run;
    std::unique_ptr<Run> run_;
};

}  // namespace tarvex
