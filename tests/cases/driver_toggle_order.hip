set -g _HIP_SAVEVERSION = '19.5.303'
out/arnold_early.parm {
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
ar_picture	[ 0	locks=0 ]	(	"$HIP/render/early.$F4.exr"	)
ar_ass_file	[ 0	locks=0 ]	(	"$HIP/ass/early.$F4.ass"	)
}
out/arnold_late.parm {
ar_picture	[ 0	locks=0 ]	(	"$HIP/render/late.$F4.exr"	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
ar_ass_file	[ 0	locks=0 ]	(	"$HIP/ass/late.$F4.ass"	)
}
out/rs1.parm {
RS_outputFileNamePrefix	[ 0	locks=0 ]	(	"$HIP/render/rs.$F4"	)
RS_outputFileFormat	[ 0	locks=0 ]	(	".exr"	)
RS_archive_enable	[ 0	locks=0 ]	(	"on"	)
ar_ass_export_enable	[ 0	locks=0 ]	(	"off"	)
RS_archive_file	[ 0	locks=0 ]	(	"$HIP/rs/rs1.$F4.rs"	)
}
out/arnold_rsoff.parm {
ar_picture	[ 0	locks=0 ]	(	"$HIP/render/rsoff.$F4.exr"	)
ar_ass_export_enable	[ 0	locks=0 ]	(	"on"	)
RS_archive_enable	[ 0	locks=0 ]	(	"off"	)
ar_ass_file	[ 0	locks=0 ]	(	"$HIP/ass/rsoff.$F4.ass"	)
}
