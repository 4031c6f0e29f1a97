-- The sample catalogue. {folder} stands for the program folder, with "\" between folders.
-- Dates are ISO texts and truth values 1 or 0.
Begin;
Create table Project (
  IdProject INTEGER PRIMARY KEY,
  Name VARCHAR(100) COLLATE NOCASE,
  Path VARCHAR(255),
  Created BOOLEAN,
  DtModified DATETIME
);
Create table Page (
  PageId INTEGER PRIMARY KEY,
  ProjectId INTEGER,
  PageName VARCHAR(100) COLLATE NOCASE,
  TPath VARCHAR(255),
  Path VARCHAR(255)
);
Create table CustomCD (
  ProjectId INTEGER PRIMARY KEY,
  PPath VARCHAR(255)
);
Create index PageByProject on Page (ProjectId, PageName);
Create index ProjectByDate on Project (Created, DtModified);

Insert into Project values
  (1, 'Garden Notes', '{folder}\Sites\Garden', 1, '2003-05-01 09:30:00'),
  (2, 'A Walk through the Old Town', '{folder}\Sites\OldTown', 1, '2003-04-12 17:05:00'),
  -- Its site was moved from here to Sites\Lighthouse; opening it asks for the new folder.
  (3, 'The Lighthouse', '{folder}\Sites\Harbour', 1, '2003-06-20 11:00:00');

Insert into Page values
  (1, 1, 'Home', '{folder}\Sites\Garden', '\Files\Home.htm'),
  (2, 1, 'Roses', '{folder}\Sites\Garden', '\Files\Roses.htm'),
  (3, 1, 'herbs', '{folder}\Sites\Garden', '\Files\Herbs.htm'),
  (4, 2, 'Home', '{folder}\Sites\OldTown', '\Files\Home.htm'),
  (5, 2, 'The market', '{folder}\Sites\OldTown', '\Files\Market.htm'),
  (6, 2, 'The tea house', '{folder}\Sites\OldTown', '\Files\TeaHouse.htm'),
  (7, 3, 'Home', '{folder}\Sites\Harbour', '\Files\Home.htm'),
  (8, 3, 'The keepers', '{folder}\Sites\Harbour', '\Files\Keepers.htm'),
  (9, 3, 'Visitors', '{folder}\Sites\Harbour', '\Files\Visitors.htm');

Insert into CustomCD values
  (1, '{folder}\Sites\Garden'),
  (2, '{folder}\Sites\OldTown'),
  (3, '{folder}\Sites\Harbour');
Commit;
