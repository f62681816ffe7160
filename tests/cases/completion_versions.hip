set -g _HIP_SAVEVERSION = '19.5.303'
set -g HtoA_KickVersion = '7.1.4.1'
out/a1.parm {
ar_picture	[ 0	locks=0 ]	(	"$HIP/render/a1.$F4.exr"	)
ar_ass_export_enable	[ 0	locks=0 ]	(	"on"	)
ar_ass_file	[ 0	locks=0 ]	(	"$HIP/ass/a1.$F4.ass"	)
}
out/r1.parm {
RS_outputFileNamePrefix	[ 0	locks=0 ]	(	"$HIP/render/r1.$F4.exr"	)
RS_archive_enable	[ 0	locks=0 ]	(	"on"	)
RS_archive_file	[ 0	locks=0 ]	(	"$HIP/rs/r1.$F4.rs"	)
}
out/v1.parm {
SettingsOutput_img_file_path	[ 0	locks=0 ]	(	"$HIP/render/v1.$F4.exr"	)
render_export_mode	[ 0	locks=0 ]	(	"2"	)
render_export_filepath	[ 0	locks=0 ]	(	"$HIP/vrscene/v1.$F4.vrscene"	)
}
out/p1.parm {
ri_display_0	[ 0	locks=0 ]	(	"$HIP/render/p1.$F4.exr"	)
rib_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/rib/p1.$F4.rib"	)
}
