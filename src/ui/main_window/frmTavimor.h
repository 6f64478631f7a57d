#pragma once

#include <QTimer>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "formats/open_problem.h"
#include "model/Dimension.h"
#include "script/ScriptHost.h"
#include "ui/analysis/analysis_link.h"
#include "ui/analysis/analysis_runner.h"
#include "ui/controls/common_dialog.h"
#include "ui/controls/form.h"
#include "ui/controls/help/help_key.h"
#include "ui/controls/long_work.h"
#include "ui/controls/printing/printer.h"
#include "ui/main_window/frmTavimor_controls.h"
#include "ui/main_window/problem_keeper.h"

namespace tavimor {

/// The first line of the list while it shows the precise coefficients.
inline constexpr char kPreciseListed[] = "PRECISE COEFFICIENTS in the place of the listed ones, until Compute:";

class frmAnalysis;
class frmEvaluations;
class frmFun;
class frmVars;
class StepRecorder;
enum class Stage;
struct Entries;
struct Exchanged;
struct Shown;

/// The main window, the owner of the run: the user types the problem into it step by step, fits it and reads the
/// results. All data live in the model, which the other windows share.
class frmTavimor : public Form, private MainControls {
  Q_OBJECT

 public:
  explicit frmTavimor(Dimension& model);
  ~frmTavimor() override;

  /// Fills the grid of the values window with the values of variable v, and puts its name into the caption.
  void PopulateGridVars(Long v);
  void GetVarX(Long v, Long i);
  void SetVarX(Long v, Long i);

  /// Shows block k and puts the caret into its lower limit.
  void EditLimit(Long k);

  /// Shows the model in the fields, the centres' texts excepted.
  void SetDisplayedSpecs();

  /// Makes the blocks of the declared variables and lays the tables out by the numbers that stand in the fields.
  void LoadObjects();

  void Compute();
  void Evaluate();

  /// Opens what an earlier session has left in this folder (see Restorable), as a copy without a file.
  void restoreFolder(const std::string& folder);

  /// Keeps what is not saved, as it stands, and waits for that; for when the program ends.
  void keepForRestore(SessionEnd end);

  /// Opens a problem as the Open command does once a file is chosen.
  void openFile(const std::string& path);

  /// Writes what the fields show, as far as they can be read, and all values; for when the program has failed and is
  /// about to end. Errors: a Failure.
  void saveCopy(const std::string& path);

  /// Whether something was typed since the problem was opened or saved; false as long as there is none to save.
  bool hasUnsavedChanges() const;

  ScriptHost ScriptControl1;
  Printer printer;  // one for the whole run: the next report begins with the printer and the paper of the last one
  Long ierr = 0;    // the last run-time error that a function of the script object met

 signals:
  /// What a save would write may be another problem than before, or was saved.
  void ProblemChanged();

 private:
  enum class Direction { Back, Forth };

  void Form_Load();
  void Form_Unload() override;
  void mousePressEvent(QMouseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void connectCommands();
  void mnuAbout_Click();
  void cmdNextVar_Click();
  void cmdPrevVar_Click();
  void showBlockNumber(Long number);

  // Entry rules
  void connectHeading();
  void connectBlock(Long k);
  void limit_Validate(const TextBox& field, bool& cancel);
  void txtOrder_Validate(bool& cancel);
  void txtOrder_LostFocus();
  void txtVarNams_Validate(bool& cancel);
  void txtVarNams_LostFocus();
  void txtTerms_GotFocus(Long k);
  void txtTerms_Validate(Long k, bool& cancel);
  void txtTerms_LostFocus(Long k);
  void txtPoints_GotFocus(Long k);
  void txtPoints_Validate(Long k, bool& cancel);
  void txtPoints_LostFocus(Long k);
  void connectHints(TextBox& field);

  // Files
  void mnuOpen_Click();
  void mnuSave_Click();
  void mnuSaveAs_Click();
  void mnuPrint_Click();
  void takeSaveName();
  void saveIfNamed();
  void SaveProblem();
  void showOpened(OpenedProblem opened, const char* change);
  void nameFile(const std::string& path);
  void noteSaved();
  WorkEnd openAsLongWork(const std::string& path, OpenedProblem& opened);
  WorkEnd saveAsLongWork(const std::string& path);
  bool isToEnd() const;

  // Tables
  void mnuImport_Click();
  void mnuPaste_Click();
  void importFile(const std::string& path);
  void importText(std::string_view text);
  void takeDropped(const QString& file, const std::string& text);

  // Restoring
  void keepUnsavedWork();
  std::optional<SessionProblem> sessionProblem() const;
  void mnuRestore_Click();
  void restore(const Restorable& chosen);
  void showRestored(SessionProblem kept);
  void showTypedNames(const TypedNames& typed);

  // Formulas
  void mnuExport_Click();
  void mnuCopyTable_Click();
  bool hasFormulaToExport() const;

  // Compute and listing
  void cmdCompute_Click();
  void ClearResults();
  void CaptureSpecs();
  void fitTablesToSpecs();
  void ShowResults();
  void ShowFitIfDone();
  void enableWhatNeedsAFit();
  AllSpecFields specFields() const;

  // Analysis
  void connectAnalysis();
  void mnuAnalysis_Click();
  void fitFound(ListedFrom from);
  void fitDropped();
  void showWhatIsListed();
  void noAnalysis(const QString& why);
  void showAnalysis(const std::shared_ptr<const Analysis>& analysis, const Advice& advice);
  void tellVerdict();
  void tellAnalysisWindow();
  void showAnalysisProgress();
  void followAdvice();
  bool leaveField();
  void useMiddles();
  void useDegrees(const PerVariable<Long>& degrees, Then then);
  bool isAnalysisOfTheModel() const;
  void usePreciseCoefficients();
  void openFunctionAt(const PerVariable<Long>& index);

  // Values and function
  void cmdEditVars_Click(Long Index);
  void cmdAddVars_Click(Long Index);
  void cmdEditFun_Click();
  void EditVarValues(Long v, Long first);
  void numberOfValuesChanged(Long v);
  void doubleValuesColumn();
  frmVars& valuesWindow();
  void giveValuesAndFixTheirNumber(Long v);
  std::optional<PerVariable<Long>> askForStartingSet();
  void beginEditing(Long v);
  void beginAdding(Long v, Long count);
  void beginReview();
  void openFunctionWindow(const PerVariable<Long>& start);

  // Undo
  void connectSteps();
  void connectSteps(frmVars& window);
  void connectSteps(frmFun& window);
  void mnuUndo_Click();
  void mnuRedo_Click();
  void travel(Direction direction);
  void showSteps();
  void showExchanged(const Exchanged& exchanged, const Shown& shown);
  void showEntries(const Entries& entries);
  void showStage(Stage stage);
  void showPlace(Long k);
  void showFirstFields();
  bool isDataWindowOpen() const;
  void showInDataWindow(const Exchanged& exchanged);

  // Tools
  void connectTools();
  void fillRecent();

  // Status line
  void tell(const QString& hint);
  void showWorth();
  void showFileName();
  void showBlockOfBlocks(Long k);

  // Help
  void mnuHelp_Click();
  void showHelp(const QString& page);

  // Script engine and evaluations
  void setUpScript();
  void ScriptControl1_Error();
  void cmdEvaluations_Click();

  Dimension& model_;
  Class1 sh_{ierr};
  QPointer<frmEvaluations> evaluations_;
  QPointer<frmVars> valuesWindow_;
  QPointer<frmFun> functionWindow_;
  std::unique_ptr<StepRecorder> steps_;
  std::size_t openedAt_ = 0;  // the step at which the data window was opened
  CommonDialog cdbFile;
  std::optional<ProblemKeeper> keeper_;
  HelpKey helpKey_{[this](const QString& page) { showHelp(page); }};
  AnalysisLink analysisLink_;
  QPointer<frmAnalysis> analysisWindow_;
  std::shared_ptr<const Analysis> analysis_;  // of the fit that is listed; null until it is there
  Advice advice_;
  bool isPreciseListed_ = false;  // the precise coefficients stand in the place of those of the fit
  QString noAnalysisBecause_;
  AnalysisRunner analysisRunner_;
  QTimer analysisProgress_;
  std::string refusedFile_;  // a file of the user's that could not be opened or replaced: never replaced unasked
};

}  // namespace tavimor
