// node run.mjs BUILD-FOLDER [part of a test's name]
import { runTests } from "./harness.mjs";
import { kResults, makePages } from "./pages.mjs";
import "./report_content_test.mjs";
import "./report_use_test.mjs";
import "./report_looks_test.mjs";

makePages();
process.exitCode = (await runTests(kResults, process.argv[3])) === 0 ? 0 : 1;
