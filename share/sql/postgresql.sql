-- Reads fleet.jsonl from the working directory: psql -f postgresql.sql, then psql -f views.sql
-- The first two control characters quote and separate nothing: JSON never has them, so each line is one value.
CREATE TABLE lines (line jsonb);
\copy lines FROM 'fleet.jsonl' WITH (FORMAT csv, QUOTE E'\x01', DELIMITER E'\x02')
CREATE TABLE objects (
  machine text NOT NULL,
  collected text NOT NULL,  -- the time of the machine: "2026-11-21 09:30:00"
  class text NOT NULL,
  path text NOT NULL,
  properties jsonb NOT NULL
);
INSERT INTO objects
SELECT line ->> 'machine',
  regexp_replace(left(line ->> 'time', 14), '(....)(..)(..)(..)(..)(..)', '\1-\2-\3 \4:\5:\6'),
  line ->> 'class', line ->> 'path', line -> 'properties'
FROM lines
WHERE line ->> 'class' IN ('machine', 'incident', 'controller', 'logicalDrive', 'disk', 'damagedFile');
DROP TABLE lines;
CREATE INDEX objects_by_class ON objects (class, machine, collected);
