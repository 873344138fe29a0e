// node duckdb.mjs FILE.sql...: runs the statements in DuckDB and prints the rows, as "sqlite3" does.
import { readFileSync } from "node:fs";
import { DuckDBInstance } from "@duckdb/node-api";

const connection = await (await DuckDBInstance.create(":memory:")).connect();
for (const file of process.argv.slice(2)) {
  const text = readFileSync(file, "utf8").replace(/^--.*\n/gm, "");
  for (const statement of text.split(";\n").filter((each) => each.trim() !== "")) {
    const rows = (await connection.runAndReadAll(statement)).getRows();
    if (/^\s*SELECT/.test(statement)) for (const row of rows) console.log(row.map((cell) => cell ?? "").join("|"));
  }
}
