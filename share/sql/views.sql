-- Views on the objects of a fleet, for SQLite, PostgreSQL and DuckDB alike. Each needs a table, or a view,
-- objects(machine, collected, class, path, properties): sqlite.sql, postgresql.sql and duckdb.sql make it of what
-- "hxahost fleet --format jsonl" writes. Texts of "collected" are times of the machine: "2026-11-21 09:30:00".

CREATE VIEW newest AS
SELECT machine, max(collected) AS collected FROM objects WHERE class = 'machine' GROUP BY machine;

CREATE VIEW machines AS
SELECT o.machine, o.collected, (o.properties ->> 'level') AS level, (o.properties ->> 'source') AS source
FROM objects o JOIN newest n ON n.machine = o.machine AND n.collected = o.collected
WHERE o.class = 'machine';

CREATE VIEW incidents AS
SELECT o.machine, o.collected, o.path AS subject, (o.properties ->> 'level') AS level,
  (o.properties ->> 'controller') AS controller, (o.properties ->> 'name') AS name,
  (o.properties ->> 'location') AS location, (o.properties ->> 'model') AS model,
  (o.properties ->> 'serialNumber') AS serial_number, (o.properties ->> 'fru') AS fru,
  (o.properties ->> 'headline') AS headline, (o.properties ->> 'action') AS action
FROM objects o JOIN newest n ON n.machine = o.machine AND n.collected = o.collected
WHERE o.class = 'incident';

CREATE VIEW controllers AS
SELECT o.machine, o.collected, (o.properties ->> 'controller') AS controller, (o.properties ->> 'level') AS level,
  (o.properties ->> 'model') AS model, (o.properties ->> 'serialNumber') AS serial_number,
  (o.properties ->> 'firmware') AS firmware
FROM objects o JOIN newest n ON n.machine = o.machine AND n.collected = o.collected
WHERE o.class = 'controller';

-- Of all collections, also those that are not the newest. "condition" is "failed", "predicted" or nothing.
CREATE VIEW disk_history AS
SELECT machine, collected, (properties ->> 'controller') AS controller, (properties ->> 'level') AS level,
  (properties ->> 'location') AS location, (properties ->> 'vendor') AS vendor, (properties ->> 'model') AS model,
  (properties ->> 'serialNumber') AS serial_number, (properties ->> 'fru') AS fru,
  (properties ->> 'firmware') AS firmware, CAST((properties ->> 'bytes') AS bigint) AS bytes,
  (properties ->> 'state') AS state, (properties ->> 'condition') AS condition
FROM objects WHERE class = 'disk';

CREATE VIEW disks AS
SELECT d.* FROM disk_history d JOIN newest n ON n.machine = d.machine AND n.collected = d.collected;

CREATE VIEW firmware AS
SELECT 'disk' AS kind, model, firmware, count(*) AS objects, count(DISTINCT machine) AS machines
FROM disks GROUP BY model, firmware
UNION ALL
SELECT 'controller', model, firmware, count(*), count(DISTINCT machine) FROM controllers GROUP BY model, firmware;

CREATE VIEW damaged_files AS
SELECT path AS file, (properties ->> 'headline') AS reason FROM objects WHERE class = 'damagedFile';
