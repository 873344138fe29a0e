-- Reads fleet.jsonl from the working directory: sqlite3 fleet.db <sqlite.sql, then sqlite3 fleet.db <views.sql
-- The objects alone are kept: of the instances a line of their class tells how to keep them, too.
CREATE TABLE lines (line text);
.mode ascii
.separator "\037" "\n"
.import fleet.jsonl lines
CREATE TABLE objects AS
SELECT (line ->> '$.machine') AS machine,
  substr(line ->> '$.time', 1, 4) || '-' || substr(line ->> '$.time', 5, 2) || '-' || substr(line ->> '$.time', 7, 2) ||
    ' ' || substr(line ->> '$.time', 9, 2) || ':' || substr(line ->> '$.time', 11, 2) || ':' ||
    substr(line ->> '$.time', 13, 2) AS collected,
  (line ->> '$.class') AS class, (line ->> '$.path') AS path, (line -> '$.properties') AS properties
FROM lines
WHERE (line ->> '$.class') IN ('machine', 'incident', 'controller', 'logicalDrive', 'disk', 'damagedFile');
DROP TABLE lines;
CREATE INDEX objects_by_class ON objects (class, machine, collected);
