out/s01.parm {
vm_picture	[ 0	locks=0 ]	(	"/proj/render/beauty.####.exr"	)
}
out/s02.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/beauty.[####].exr"	)
}
out/s03.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/beauty_#.exr"	)
}
out/s04.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/beauty.%04d.exr"	)
}
out/s05.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/beauty.%d.exr"	)
}
out/s06.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/b.%3d.#.exr"	)
}
out/s07.parm {
vm_picture	[ 0	locks=0 ]	(	"/d%x.####.exr"	)
}
out/s08.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/beauty.0001.exr"	)
}
out/s09.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/1234.exr"	)
}
out/s10.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/beauty"	)
}
out/s11.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/a.#.abcdefghijklmnopqrstuvwxyz0123"	)
}
out/s12.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/movie.mov"	)
}
out/s13.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/movie.####.MP4"	)
}
out/s14.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/scene.vrscene"	)
}
out/s15.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/scene.####.vrscene"	)
}
out/s16.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/no_check.file"	)
}
out/s17.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/JOB.FILE"	)
}
out/s18.parm {
vm_picture	[ 0	locks=0 ]	(	"C:\proj\img.####.exr"	)
}
out/s19.parm {
vm_picture	[ 0	locks=0 ]	(	"/proj\sub/img.####.exr"	)
}
out/s20.parm {
vm_picture	[ 0	locks=0 ]	(	"C:\proj/sub\img.#.exr"	)
}
out/s21.parm {
vm_picture	[ 0	locks=0 ]	(	"/proj//render///img.####.exr"	)
}
out/s22.parm {
vm_picture	[ 0	locks=0 ]	(	"/a////b/img.#.exr"	)
}
out/s23.parm {
vm_picture	[ 0	locks=0 ]	(	"//server/share//img.####.exr"	)
}
out/s24.parm {
vm_picture	[ 0	locks=0 ]	(	"\\\\server\img.#.exr"	)
}
out/s25.parm {
vm_picture	[ 0	locks=0 ]	(	"C:render\beauty.####.exr"	)
}
out/s26.parm {
vm_picture	[ 0	locks=0 ]	(	"img.#.exr"	)
}
out/s27.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/<Layer>/img.####.exr"	)
}
out/s28.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/<layer>/img.####.exr"	)
}
out/s29.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/<Camera>/sub/img.#.exr"	)
}
out/s30.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/x/<Channel_a>/i.#.exr"	)
}
out/s31.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/a<removeVar x>/b<Layer>/i.#.exr"	)
}
out/s32.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/userpass>/i.#.exr"	)
}
